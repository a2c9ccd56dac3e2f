#include "desktop/tools/colour_choice.h"

#include <QApplication>
#include <QMdiArea>
#include <array>

#include "core/workbench.h"
#include "desktop/drawing/palettes.h"

namespace wb::desktop {

namespace {

constexpr const char* coloursSetting = "MainColours";

QPalette systemPalette() {
    return {}; // which gives the choice back to the system
}

struct Choice {
    const char* name; ///< in the settings
    const char* text;
    QPalette (*palette)();
};

constexpr std::array<Choice, 3> choices = {{
    {"system", "Colours of the &System", &systemPalette},
    {"light", "&Light", &lightPalette},
    {"dark", "Dar&k", &darkPalette},
}};

} // namespace

ColourChoice::ColourChoice(MainView& frame, QMenu& menu)
    : frame_(frame), entries_(this), chosen_(choices.front().name) {
    const auto stored = frame.screen()->workbench().platform.settings.read(coloursSetting);
    for (const Choice& choice : choices) {
        QAction* entry = menu.addAction(choice.text);
        entry->setCheckable(true);
        entry->setData(choice.name);
        entries_.addAction(entry);
        if (stored == choice.name) {
            chosen_ = choice.name;
        }
    }
    QObject::connect(&entries_, &QActionGroup::triggered, this,
                     [this](const QAction* entry) { choose(entry->data().toString()); });
    if (chosen_ != choices.front().name) {
        apply(chosen_);
    }
    for (QAction* entry : entries_.actions()) {
        entry->setChecked(entry->data() == chosen_);
    }
}

ColourChoice::~ColourChoice() {
    if (chosen_ != choices.front().name) {
        QApplication::setPalette(systemPalette());
    }
}

void ColourChoice::choose(const QString& name) {
    if (name != chosen_ && frame_.screen() != nullptr) {
        chosen_ = name;
        apply(name);
        frame_.screen()->workbench().platform.settings.write(coloursSetting, name.toStdString());
    }
}

void ColourChoice::apply(const QString& name) {
    for (const Choice& choice : choices) {
        if (name == choice.name) {
            QApplication::setPalette(choice.palette());
            // The area keeps the ground that it was made with.
            frame_.area().setBackground(QApplication::palette().brush(QPalette::Dark));
        }
    }
}

} // namespace wb::desktop

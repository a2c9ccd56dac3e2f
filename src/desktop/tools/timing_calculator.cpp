#include "desktop/tools/timing_calculator.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QPointer>
#include <cmath>
#include <utility>

#include "adapters/cvt.h"
#include "core/base/image_layout.h"
#include "desktop/base/live_reading.h"
#include "desktop/base/own_focus.h"
#include "desktop/tools/beside.h"
#include "fields/modeline_timing.h"
#include "shell/enter_timing.h"

namespace wb::desktop {

namespace {

constexpr double kilohertzOfMegahertz = 1000;
constexpr double hertzOfKilohertz = 1000;

/// With two decimals, as the panels show them.
QString decimal(double number, const char* unit) {
    return QString("%1 %2").arg(number, 0, 'f', 2).arg(unit);
}

double linesAMillisecond(const fields::Modeline& timing) {
    return static_cast<double>(timing.clockKilohertz) / timing.horizontal.total;
}

double picturesASecond(const fields::Modeline& timing) {
    return linesAMillisecond(timing) * hertzOfKilohertz / timing.vertical.total;
}

} // namespace

TimingCalculator::TimingCalculator(MainView& frame)
    : QDialog(&frame.window()),
      frame_(frame),
      width_(new QSpinBox),
      height_(new QSpinBox),
      rate_(new QDoubleSpinBox),
      reduced_(new QCheckBox("&Reduced blanking")),
      clock_(new QLabel),
      line_(new QLineEdit),
      note_(new QLabel),
      enter_(new QPushButton),
      copy_(new QPushButton("&Copy Modeline")) {
    markOwnFocus(*this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle("Timing Calculator");
    auto* column = new QVBoxLayout(this);
    makeQuestion(*column);
    makeAnswer(*column);
    makeButtons(*column);
    takeShownTiming();
    adjustSize();
    placeBeside(*this, frame.window());
}

void TimingCalculator::makeQuestion(QBoxLayout& column) {
    constexpr int widthStep = 8;
    constexpr int mostPixels = 4095; // of a detailed timing
    constexpr double leastHertz = 10;
    constexpr double mostHertz = 500;
    auto* row = new QHBoxLayout;
    const auto add = [&](const QString& name, QWidget& box) {
        auto* label = new QLabel(name);
        label->setBuddy(&box);
        box.setAccessibleName(QString(name).remove('&'));
        row->addWidget(label);
        row->addWidget(&box);
    };
    width_->setRange(widthStep, mostPixels);
    width_->setSingleStep(widthStep);
    width_->setSuffix(" px");
    height_->setRange(1, mostPixels);
    height_->setSuffix(" lines");
    rate_->setRange(leastHertz, mostHertz);
    rate_->setSuffix(" Hz");
    add("&Width", *width_);
    add("&Height", *height_);
    add("R&ate", *rate_);
    row->addWidget(reduced_);
    row->addStretch(1);
    column.addLayout(row);
    QObject::connect(width_, &QSpinBox::valueChanged, this, [this] { compute(); });
    QObject::connect(height_, &QSpinBox::valueChanged, this, [this] { compute(); });
    QObject::connect(rate_, &QDoubleSpinBox::valueChanged, this, [this] { compute(); });
    QObject::connect(reduced_, &QCheckBox::toggled, this, [this] { compute(); });
}

void TimingCalculator::makeAnswer(QBoxLayout& column) {
    constexpr std::array<const char*, numbers> heads = {"Active", "Blanking",  "Sync offset", "Pulse width",
                                                        "Total",  "Frequency", "Polarity"};
    constexpr std::array<const char*, 2> rows = {"Horizontal", "Vertical"};
    clock_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    column.addWidget(clock_);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(fontMetrics().height());
    for (std::size_t number = 0; number < heads.size(); ++number) {
        grid->addWidget(new QLabel(heads[number]), 0, static_cast<int>(number) + 1, Qt::AlignRight);
    }
    for (std::size_t axis = 0; axis < rows.size(); ++axis) {
        const int row = static_cast<int>(axis) + 1;
        grid->addWidget(new QLabel(rows[axis]), row, 0);
        for (std::size_t number = 0; number < heads.size(); ++number) {
            auto* label = new QLabel;
            label->setAccessibleName(QString("%1 %2").arg(rows[axis], QString(heads[number]).toLower()));
            axes_[axis][number] = label;
            grid->addWidget(label, row, static_cast<int>(number) + 1, Qt::AlignRight);
        }
    }
    grid->setColumnStretch(numbers + 1, 1);
    column.addLayout(grid);
    line_->setReadOnly(true);
    line_->setAccessibleName("Modeline");
    const QString example(
        R"( Modeline "3840x2160_60.00"  712.75  3840 4160 4576 5312  2160 2163 2168 2237 -hsync +vsync )");
    line_->setMinimumWidth(fontMetrics().horizontalAdvance(example));
    column.addWidget(line_);
}

void TimingCalculator::makeButtons(QBoxLayout& column) {
    note_->setTextFormat(Qt::PlainText);
    note_->setWordWrap(true);
    column.addWidget(note_);
    column.addStretch(1);
    auto* close = new QPushButton("Close");
    auto* row = new QHBoxLayout;
    row->addWidget(enter_);
    row->addWidget(copy_);
    row->addStretch(1);
    row->addWidget(close);
    column.addLayout(row);
    for (QPushButton* button : {enter_, copy_, close}) {
        button->setAutoDefault(false); // Enter in a box of numbers takes the number
    }
    QObject::connect(enter_, &QPushButton::clicked, this, [this] { enter(); });
    QObject::connect(copy_, &QPushButton::clicked, this, [this] { QApplication::clipboard()->setText(line_->text()); });
    QObject::connect(close, &QPushButton::clicked, this, &QDialog::close);
}

void TimingCalculator::takeShownTiming() {
    target_ = shownTiming(frame_.screen()->workbench());
    const fields::Reading* reading = frame_.liveReading().reading();
    std::optional<fields::Modeline> now;
    if (target_ && reading != nullptr &&
        reading->image.bytes().size() >= static_cast<std::size_t>(target_->byte) + detailedBlockSize) {
        now = fields::modelineAt(reading->image, static_cast<std::size_t>(target_->byte));
    }
    constexpr int usualWidth = 1920;
    constexpr int usualHeight = 1080;
    constexpr double usualRate = 60;
    width_->setValue(now ? now->horizontal.active : usualWidth);
    height_->setValue(now ? now->vertical.active : usualHeight);
    rate_->setValue(now ? std::round(picturesASecond(*now)) : usualRate);
    compute();
}

void TimingCalculator::compute() {
    timing_.reset();
    complaint_.clear();
    outcome_.clear();
    try {
        timing_ = adapters::cvtModeline({.width = width_->value(),
                                         .height = height_->value(),
                                         .refreshHertz = rate_->value(),
                                         .reducedBlanking = reduced_->isChecked()});
        fields::timingBytes(*timing_); // which throws where the bytes cannot hold it
    } catch (const fields::ModelineError& error) {
        complaint_ = QString::fromUtf8(error.what());
        complaint_[0] = complaint_[0].toUpper();
        complaint_ += '.';
    }
    showTiming();
    refresh();
}

void TimingCalculator::showTiming() {
    copy_->setEnabled(timing_.has_value());
    line_->setText(timing_ ? QString::fromStdString(fields::modelineText(*timing_)) : QString());
    line_->setCursorPosition(0);
    if (!timing_) {
        clock_->setText("No timing");
        for (const auto& axis : axes_) {
            for (QLabel* label : axis) {
                label->clear();
            }
        }
        return;
    }
    clock_->setText("Pixel clock " +
                    decimal(static_cast<double>(timing_->clockKilohertz) / kilohertzOfMegahertz, "MHz"));
    showAxis(0, timing_->horizontal, decimal(linesAMillisecond(*timing_), "kHz"));
    showAxis(1, timing_->vertical, decimal(picturesASecond(*timing_), "Hz"));
}

void TimingCalculator::showAxis(std::size_t row, const fields::ModelineAxis& axis, const QString& frequency) {
    const std::array<QString, numbers> texts = {QString::number(axis.active),
                                                QString::number(axis.total - axis.active),
                                                QString::number(axis.syncStart - axis.active),
                                                QString::number(axis.syncEnd - axis.syncStart),
                                                QString::number(axis.total),
                                                frequency,
                                                axis.positiveSync ? "+" : "-"};
    for (std::size_t number = 0; number < texts.size(); ++number) {
        axes_[row][number]->setText(texts[number]);
    }
}

/// Why the timing cannot be entered now; empty where it can.
QString TimingCalculator::refusal() const {
    if (!complaint_.isEmpty()) {
        return complaint_;
    }
    if (!target_) {
        return "To enter it, go to a cell of a detailed timing.";
    }
    return frame_.screen()->workbench().ModifyEDIDOn == flagFalse ? "To enter it, switch Modify EDID on." : QString();
}

void TimingCalculator::refresh() {
    const std::optional<TimingTarget> before = std::exchange(target_, shownTiming(frame_.screen()->workbench()));
    if (!before || !target_ || before->byte != target_->byte) {
        outcome_.clear();
    }
    const QString why = refusal();
    note_->setText(why.isEmpty() ? outcome_ : why);
    enter_->setEnabled(why.isEmpty());
    enter_->setText(target_ ? "&Enter into " + target_->name : QString("&Enter"));
}

void TimingCalculator::enter() {
    if (!timing_ || !target_) {
        return;
    }
    frame_.act([window = QPointer(this), byte = target_->byte, timing = *timing_](Screen& screen) {
        const bool done = shell::enterTiming(screen.workbench(), byte, timing);
        if (window != nullptr) {
            window->outcome_ = done ? "Entered." : "The cells did not take all of it.";
        }
    });
}

} // namespace wb::desktop

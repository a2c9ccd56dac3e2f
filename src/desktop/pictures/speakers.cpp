#include <QStringList>
#include <array>

#include "desktop/base/text_codec.h"
#include "desktop/pictures/painters.h"
#include "desktop/pictures/sketch.h"

namespace wb::desktop {

namespace {

/// Where a speaker, or the left one of two, stands: to the right of the listener and in front of him, in halves of the
/// room. Approximate: CTA-861 tells angles and names, not rooms. Where the panel has a check, its label is that of the
/// check.
struct Speaker {
    std::string_view field;
    const char* label; ///< of the one, or of the left one
    const char* right; ///< of the right one; null where there is one
    double x;
    double y;
    int check; ///< of the panel; the later ones have none
};

constexpr int noCheck = -1;
constexpr std::array<Speaker, 20> speakers = {{
    {"fl_fr", "FL", "FR", -0.55, 0.85, 0},
    {"lfe1", "LFE", nullptr, -0.28, 0.62, 1},
    {"fc", "FC", nullptr, 0, 0.85, 2},
    {"bl_br", "RL", "RR", -0.55, -0.75, 3},
    {"bc", "RC", nullptr, 0, -0.75, 4},
    {"flc_frc", "FLC", "FRC", -0.28, 0.85, 5},
    {"rlc_rrc", "RLC", "RRC", -0.28, -0.75, 6},
    {"flw_frw", "FLw", "FRw", -0.85, 0.62, noCheck},
    {"tpfl_tpfr", "TpFL", "TpFR", -0.55, 0.42, noCheck},
    {"tpc", "TpC", nullptr, 0, 0.2, noCheck},
    {"tpfc", "TpFC", nullptr, 0, 0.5, noCheck},
    {"ls_rs", "LS", "RS", -0.85, -0.35, noCheck},
    {"lfe2", "LFE2", nullptr, 0.28, 0.62, noCheck},
    {"tpbc", "TpBC", nullptr, 0, -0.45, noCheck},
    {"sil_sir", "SiL", "SiR", -0.85, 0, noCheck},
    {"tpsil_tpsir", "TpSiL", "TpSiR", -0.5, 0, noCheck},
    {"tpbl_tpbr", "TpBL", "TpBR", -0.55, -0.45, noCheck},
    {"btfc", "BtFC", nullptr, 0, 0.68, noCheck},
    {"btfl_btfr", "BtFL", "BtFR", -0.85, 0.85, noCheck},
    {"tpls_tprs", "TpLS", "TpRS", -0.5, -0.28, noCheck},
}};

/// Those that are not there are shown where the panel has a check for them.
void drawOne(Sketch& sketch, const QPointF& place, const QString& label, const Speaker& speaker, bool present) {
    Shape& dot = sketch.dot(place, present ? Ink::First : Ink::None);
    dot.name = label.toStdString();
    dot.line = present ? Ink::Text : Ink::Faint;
    if (speaker.check != noCheck) {
        dot.pick = Pick{"speaker", speaker.check};
    }
    const QPointF below(0, sketch.lineHeight() / 2);
    sketch.words(place + below, Qt::AlignHCenter | Qt::AlignTop, label, present ? Ink::Text : Ink::Faint);
}

} // namespace

Picture drawSpeakers(const Values& values, const Canvas& canvas) {
    if (values.field("fl_fr") == nullptr) {
        return {};
    }
    Sketch sketch(canvas.size, canvas.font);
    sketch.leave(1, 1, 1, 1);
    const QRectF room = fitted(sketch.room(), 1.2);
    const QPointF middle = room.center();
    sketch.area(QPolygonF(room), Ink::None, Ink::Text).name = "room";
    const QPointF front(room.width() / 6, 0);
    const QPointF wall(middle.x(), room.top());
    sketch.path(QPolygonF({wall - front, wall + front}), Ink::Text).name = "display";
    sketch.words(middle, Qt::AlignCenter, "listener", Ink::Faint).name = "listener";
    QStringList told;
    for (const Speaker& speaker : speakers) {
        const fields::Field* field = values.field(speaker.field);
        const bool present = values.flag(speaker.field);
        if (present) {
            told += fromUtf8(field->label);
        } else if (speaker.check == noCheck) {
            continue;
        }
        const QPointF offset(speaker.x * room.width() / 2, -speaker.y * room.height() / 2);
        drawOne(sketch, middle + offset, speaker.label, speaker, present);
        if (speaker.right != nullptr) {
            drawOne(sketch, middle + QPointF(-offset.x(), offset.y()), speaker.right, speaker, present);
        }
    }
    return {.name = "Speakers",
            .description = told.isEmpty() ? "No speakers are told." : told.join(", ") + '.',
            .shapes = sketch.take()};
}

} // namespace wb::desktop

#include "desktop/pictures/subjects.h"

#include <QRegularExpression>
#include <utility>
#include <vector>

namespace wb::desktop {

namespace {

constexpr Painter chromaticity = {&drawChromaticity, 1.5, 8};
constexpr Painter timing = {&drawTiming, 2.8, 8};
constexpr Painter established1 = {&drawEstablished1, 2, 8};
constexpr Painter established2 = {&drawEstablished2, 2, 8};
constexpr Painter established3 = {&drawEstablished3, 2, 5};
constexpr Painter standard = {&drawStandard, 2, 8};
constexpr Painter moreStandard = {&drawMoreStandard, 2, 6};
constexpr Painter range = {&drawRange, 4, 4};
constexpr Painter screen = {&drawScreen, 1.8, 6};
constexpr Painter gammaCurve = {&drawGamma, 1.4, 8};
constexpr Painter speakers = {&drawSpeakers, 1.2, 12};

/// How the path of a field tells what there is to draw.
struct Rule {
    QRegularExpression path; ///< the first group of it is the scope
    const Painter* painter;
    std::string_view needs; ///< a field that the scope must have, if any
};

const std::vector<Rule>& rules() {
    static const std::vector<Rule> all = [] {
        struct Row {
            const char* path;
            const Painter* painter;
            std::string_view needs = {};
        };
        constexpr Row rows[] = {
            {R"(^(base\.)chromaticity\.)", &chromaticity},
            {R"(^(base\.basic\.)width$)", &screen},
            {R"(^(base\.basic\.)height$)", &screen},
            {R"(^(base\.basic\.)aspect_ratio$)", &screen},
            {R"(^(base\.basic\.)portrait_ratio$)", &screen},
            {R"(^(base\.basic\.)gamma$)", &gammaCurve},
            // The lowest bits of bytes 35 to 37.
            {R"(^(base\.established\.)800x600_60$)", &established1},
            {R"(^(base\.established\.)1280x1024_75$)", &established2},
            {R"(^(base\.established\.)manufacturer_0$)", &established3},
            {R"(^(base\.)standard\[)", &standard},
            {R"(^((base|cta\[\d+\])\.detailed\[\d+\]\.))", &timing},
            {R"(^(base\.descriptor\[\d+\]\.))", &range, "range.max_v_rate"},
            {R"(^(base\.)descriptor\[\d+\]\.white_point\[)", &chromaticity},
            {R"(^(base\.descriptor\[\d+\]\.)standard\[)", &moreStandard},
            {R"(^(cta\[\d+\]\.speakers\.))", &speakers},
        };
        std::vector<Rule> made;
        for (const Row& row : rows) {
            made.push_back({QRegularExpression(row.path), row.painter, row.needs});
        }
        return made;
    }();
    return all;
}

} // namespace

std::optional<Subject> subjectAt(const fields::Reading& reading, std::size_t byte) {
    const fields::Field* field = fields::fieldAt(reading, byte, 0);
    const QString path = field != nullptr ? QString::fromStdString(field->path) : QString();
    for (const Rule& rule : rules()) {
        const QRegularExpressionMatch match = rule.path.match(path);
        std::string scope = match.captured(1).toStdString();
        if (match.hasMatch() && (rule.needs.empty() || Values(reading, scope).field(rule.needs) != nullptr)) {
            return Subject{rule.painter, std::move(scope)};
        }
    }
    return {};
}

Picture draw(const Subject& subject, const fields::Reading& reading, const Canvas& canvas) {
    return subject.painter->draw(Values(reading, subject.scope), canvas);
}

} // namespace wb::desktop

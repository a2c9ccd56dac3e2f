#include "script/session.h"

#include "core/base/text.h"

namespace wb::script {

void printValue(const Session& session, std::string_view name, std::string_view value) {
    session.print(std::string(name) + " = " + std::string(value));
}

void printBlock(const Session& session, std::string_view name, std::string_view text) {
    session.print("--- " + std::string(name));
    while (!text.empty()) {
        const std::size_t end = text.find(crLf);
        session.print(std::string(text.substr(0, end)));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + crLf.size());
    }
    session.print("--- end");
}

} // namespace wb::script

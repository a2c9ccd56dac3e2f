#include "script/variables.h"

#include <type_traits>

#include "core/base/digits.h"
#include "core/base/numbers.h"
#include "core/base/text.h"
#include "script/script_error.h"

namespace wb::script {

namespace {

template <class Value>
std::string valueText(const Value& value) {
    if constexpr (std::is_same_v<Value, std::string>) {
        return quoted(value);
    } else if constexpr (std::is_same_v<Value, bool>) {
        return std::to_string(flag(value));
    } else {
        return plainDecimal(value);
    }
}

template <class Value>
void assign(Value& variable, const std::string& value) {
    if constexpr (std::is_same_v<Value, std::string>) {
        variable = value;
    } else {
        const auto number = wholeNumber<std::int16_t>(value);
        if (!number) {
            throw ScriptError("'" + value + "' is no 16-bit number");
        }
        variable = static_cast<Value>(*number);
    }
}

struct FoundVariable {
    std::string name; ///< as scripts print it
    Variable variable;
};

/// The variable of that name, or one element of an array.
FoundVariable find(Workbench& workbench, const std::string& name) {
    const std::vector<NamePart> parts = splitName(name);
    const int index = parts.back().index;
    FoundVariable found{name, variableNamed(workbench, parts)};
    if (index == Control::noIndex) {
        return found;
    }
    TextArray* const* array = std::get_if<TextArray*>(&found.variable);
    if (array == nullptr || index >= (*array)->size()) {
        throw ScriptError("there is no '" + name + "'");
    }
    found.variable = &(**array)(index);
    return found;
}

struct VariablePrinter {
    const Session& session;
    const std::string& name;

    void operator()(const TextArray* array) const {
        for (int index = 0; index < array->size(); ++index) {
            printValue(session, name + '(' + std::to_string(index) + ')', valueText((*array)(index)));
        }
    }
    template <class Value>
    void operator()(const Value* value) const {
        printValue(session, name, valueText(*value));
    }
};

struct VariableSetter {
    const std::string& value;

    void operator()(TextArray*) const { throw ScriptError("only the elements of an array can be set"); }
    template <class Value>
    void operator()(Value* variable) const {
        assign(*variable, value);
    }
};

} // namespace

void printVariable(const Session& session, const std::string& name) {
    const FoundVariable found = find(session.workbench, name);
    std::visit(VariablePrinter{session, found.name}, found.variable);
}

void setVariable(const Session& session, const std::string& name, const std::string& value) {
    std::visit(VariableSetter{value}, find(session.workbench, name).variable);
}

} // namespace wb::script

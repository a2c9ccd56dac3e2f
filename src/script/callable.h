#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "core/base/numbers.h"
#include "core/base/text.h"
#include "core/shared_variables.h"
#include "core/workbench.h"
#include "script/parser.h"

/// Functions of the program that a script calls by name. The function itself says which arguments it takes and what it
/// gives.
namespace wb::script {

/// A result as scripts print it: texts quoted, flags -1 or 0, numbers plain; nothing of a procedure.
using ResultText = std::optional<std::string>;

struct Callable {
    std::string_view name;
    std::size_t argumentCount;
    ResultText (*run)(Workbench& workbench, const Arguments& arguments);
};

/// A number argument: strictly a number (else a ScriptError), rounded to a 16-bit integer (else an Overflow failure).
int numberArgument(const std::string& text);
/// The control that an argument names; touches its screen.
Control& controlArgument(Workbench& workbench, const std::string& text);

namespace detail {

template <class Parameter>
decltype(auto) argumentAs(Workbench& workbench, const std::string& text) {
    if constexpr (std::is_same_v<Parameter, Control&>) {
        return controlArgument(workbench, text);
    } else if constexpr (std::is_arithmetic_v<Parameter>) {
        return static_cast<Parameter>(numberArgument(text));
    } else {
        return static_cast<const std::string&>(text);
    }
}

template <class Result>
std::string resultText(const Result& result) {
    if constexpr (std::is_same_v<Result, bool>) {
        return std::to_string(flag(result));
    } else if constexpr (std::is_arithmetic_v<Result>) {
        return plainDecimal(static_cast<double>(result));
    } else {
        return quoted(result);
    }
}

template <class Function>
ResultText resultOf(Function&& function) {
    if constexpr (std::is_void_v<decltype(function())>) {
        function();
        return std::nullopt;
    } else {
        return resultText(function());
    }
}

template <class Signature>
struct Caller;

template <class Result, class... Parameters>
struct Caller<Result (*)(Workbench&, Parameters...)> {
    static constexpr std::size_t count = sizeof...(Parameters);

    template <auto function>
    static ResultText run(Workbench& workbench, const Arguments& arguments) {
        return [&]<std::size_t... Index>(std::index_sequence<Index...>) {
            return resultOf(
                [&] { return function(workbench, argumentAs<Parameters>(workbench, arguments[Index].text)...); });
        }
        (std::index_sequence_for<Parameters...>());
    }
};

template <class Result, class... Parameters>
struct Caller<Result (*)(Parameters...)> {
    static constexpr std::size_t count = sizeof...(Parameters);

    template <auto function>
    static ResultText run(Workbench& workbench, const Arguments& arguments) {
        return [&]<std::size_t... Index>(std::index_sequence<Index...>) {
            return resultOf([&] { return function(argumentAs<Parameters>(workbench, arguments[Index].text)...); });
        }
        (std::index_sequence_for<Parameters...>());
    }
};

} // namespace detail

/// The table entry of a function, which may take the program first.
template <auto function>
constexpr Callable callable(std::string_view name) {
    using Caller = detail::Caller<decltype(function)>;
    return {name, Caller::count, &Caller::template run<function>};
}

/// The helper of the text module of that name; an unknown name is a ScriptError.
const Callable& helperNamed(std::string_view name);

/// The procedure of that name: those of the extension screen stand under "frmCEA_EXT.", all others stand alone or under
/// "frmEDID.". A click handler also goes by the name of its control. An unknown name is a ScriptError.
const Callable& procedureNamed(std::string_view name);

} // namespace wb::script

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace CLI {
class App;
}

/// What a command takes: how its arguments are read, and what its help tells of them.
namespace wb::cli {

/// What the help tells of an option. One that is put together is so only where the help is asked for.
class Description {
public:
    using Maker = std::string (*)();

    Description(const char* text) : text_(text) {}
    Description(Maker make) : make_(make) {}

    std::string text() const { return make_ == nullptr ? std::string(text_) : make_(); }

private:
    std::string_view text_;
    Maker make_ = nullptr;
};

/// An option or an operand.
class Option {
public:
    /// Where its values go: a flag has none, an optional or a plain text takes the last of them, a list all.
    using Target = std::variant<bool*, std::string*, std::optional<std::string>*, std::vector<std::string>*>;
    using Names = std::vector<std::string> (*)();

    Option(std::string_view names, std::string_view value, Description description, Target target)
        : names_(names), value_(value), description_(description), target_(target) {}

    /// Takes one of these names only. Where there is no description, the help lists them, of which the first is the
    /// default.
    Option& oneOf(Names choices);
    Option& refuseEmpty();
    Option& require();
    /// What a flag sets its target to, which is otherwise true.
    Option& sets(bool value);

private:
    friend class Syntax;

    bool isOperand() const { return names_.front() != '-'; }
    /// Whether the arguments may name it.
    bool mayBeAmong(const std::vector<std::string>& arguments) const;
    std::string words() const;
    void addTo(CLI::App& app, const std::string& words) const;

    std::string_view names_; ///< "-o,--output-dir", or of an operand "FILE"
    std::string_view value_; ///< "DIR"
    Description description_;
    Target target_;
    Names choices_ = nullptr;
    bool required_ = false;
    bool notEmpty_ = false;
    bool sets_ = true;
};

/// The options and operands of a command, in the order in which the help tells them. The option library reads the
/// arguments, but is told only of what they may name: describing an option to it costs as much as decoding a timing.
class Syntax {
public:
    /// The texts must outlive the object, all but `program`, which is what the user types: "edidwb check".
    Syntax(std::string program, std::string_view description)
        : program_(std::move(program)), description_(description) {
        constexpr std::size_t mostOptions = 24; // of any command
        options_.reserve(mostOptions);
    }
    Syntax(const Syntax&) = delete;
    Syntax& operator=(const Syntax&) = delete;

    // `names` is "-o,--output-dir" or "--all". What is given back is good until the next one is added.
    Option& flag(std::string_view names, Description description, bool& target) {
        return option(names, {}, description, &target);
    }
    Option& option(std::string_view names, std::string_view value, Description description, Option::Target target) {
        return options_.emplace_back(names, value, description, target);
    }
    Option& operand(std::string_view name, Description description, Option::Target target) {
        return option(name, {}, description, target);
    }
    /// Where there are any, one of them must be given.
    void subcommand(std::string_view name, std::string_view description) {
        subcommands_.push_back({name, description});
    }
    /// What --version prints, without a line end.
    void version(std::string text) { version_ = std::move(text); }
    /// What stands at the end of the help.
    void footer(std::string_view text) { footer_ = text; }

    /// Puts the values of the arguments where they belong. Gives the text that they ask for instead of the work: the
    /// help or the version. Wrong use is a UsageError.
    std::optional<std::string> read(const std::vector<std::string>& arguments) const;

private:
    struct Subcommand {
        std::string_view name;
        std::string_view description;
    };

    bool readsWithNamed(const std::vector<std::string>& arguments) const;
    std::optional<std::string> readWithAll(const std::vector<std::string>& arguments) const;

    std::string program_;
    std::string_view description_;
    std::string_view footer_;
    std::string version_;
    std::vector<Option> options_;
    std::vector<Subcommand> subcommands_;
};

} // namespace wb::cli

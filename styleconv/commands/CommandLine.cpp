#include "styleconv/commands/CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <system_error>
#include <utility>

namespace styleconv {
namespace {

void NameKind(CLI::Option& option, const std::string& kind) {
    if (!kind.empty()) {
        option.type_name(kind);
    }
}

// One value each time. Were more allowed at once, the words behind would be taken for values, too, and a
// value in brackets for a list of them.
void AllowAgain(CLI::Option& option, const std::string& kind) {
    NameKind(option, kind);
    option.expected(1)->take_all()->allow_extra_args(false);
}

std::string NotAsExpected(const std::string& expected, const std::string& found) {
    return "expected " + expected + ", found \"" + found + "\"";
}

// Decimal, and nothing before or behind it.
bool ReadWholeNumber(const std::string& text, std::int64_t& wholeNumber) {
    const char* const end = text.data() + text.size();
    const auto [read, error] = std::from_chars(text.data(), end, wholeNumber);
    return error == std::errc() && read == end;
}

// The arguments, last first, as they are parsed. "--name=" is an empty name, and not the word that follows.
std::vector<std::string> ReversedArguments(int argc, char** argv) {
    std::vector<std::string> arguments;
    bool optionsEnd = false;
    for (int i = 1; i < argc; ++i) {
        std::string argument = argv[i];
        optionsEnd = optionsEnd || argument == "--";
        if (!optionsEnd && argument.starts_with("--") && argument.find('=') == argument.size() - 1) {
            argument.pop_back();
            arguments.push_back(std::move(argument));
            argument.clear();
        }
        arguments.push_back(std::move(argument));
    }
    std::reverse(arguments.begin(), arguments.end());
    return arguments;
}

// What stands where a command should, if anything but options does.
std::string NoCommandText(const CLI::App& app) {
    const std::vector<std::string> rest = app.remaining();
    const bool isWord = !rest.empty() && !rest.front().starts_with('-');
    return isWord ? "there is no command \"" + rest.front() + "\"" : "a command is missing";
}

// Help and version are no errors and go to standard output.
ExitStatus Explain(const CLI::App& app, const CLI::ParseError& error) {
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
        app.exit(error);
        return kDone;
    }
    const bool noCommand = app.get_subcommands().empty() && error.get_name() == "RequiredError";
    std::fprintf(stderr, "styleconv: %s\nTry \"styleconv --help\" or \"styleconv COMMAND --help\".\n",
                 noCommand ? NoCommandText(app).c_str() : error.what());
    return kUsageFault;
}

} // namespace

void Command::AddFile(std::string& path, const std::string& description) {
    app_->add_option("FILE", path, description)->required();
}

void Command::AddFiles(std::vector<std::string>& paths, const std::string& description) {
    app_->add_option("FILE", paths, description)->required();
}

void Command::AddFlag(const std::string& name, bool& value, const std::string& description) {
    app_->add_flag(name, value, description);
}

void Command::AddText(const std::string& name, std::string& value, const std::string& kind,
                      const std::string& description) {
    CLI::Option& option = *app_->add_option(name, value, description);
    NameKind(option, kind);
    option.check([kind](const std::string& text) { return text.empty() ? NotAsExpected(kind, text) : ""; });
}

void Command::AddTexts(const std::string& name, std::vector<std::string>& values, const std::string& kind,
                       const std::string& description) {
    AllowAgain(*app_->add_option(name, values, description), kind);
}

void Command::AddIntegers(const std::string& name, std::vector<std::int64_t>& values, const std::string& kind,
                          const std::string& description) {
    const auto read = [name, &values](const std::vector<std::string>& texts) {
        for (const std::string& text : texts) {
            if (!ReadWholeNumber(text, values.emplace_back())) {
                throw CLI::ValidationError(name, NotAsExpected("a whole number", text));
            }
        }
    };
    AllowAgain(*app_->add_option_function<std::vector<std::string>>(name, read, description), kind);
}

void Command::AddChoice(const std::string& name, std::string& value, const std::vector<std::string>& choices,
                        const std::string& description) {
    CLI::Option* const option = app_->add_option(name, value, description)->check(CLI::IsMember(choices));
    if (!value.empty()) {
        option->capture_default_str();
    }
}

void Command::AddOnlyChoice(const std::string& name, const std::string& choice) {
    app_->add_option_function<std::string>(name, [](const std::string&) {})
        ->check(CLI::IsMember({choice}))
        ->group("");
}

void Command::AddReader(const std::string& name, const TextReader& read, const std::string& kind,
                        const std::string& description) {
    const auto readOrRefuse = [name, read](const std::string& text) {
        if (const std::string expected = read(text); !expected.empty()) {
            throw CLI::ValidationError(name, NotAsExpected(expected, text));
        }
    };
    NameKind(*app_->add_option_function<std::string>(name, readOrRefuse, description), kind);
}

CommandLine::CommandLine(const std::string& description, const std::string& version)
    : app_(std::make_unique<CLI::App>(description, "styleconv")) {
    app_->set_version_flag("--version", "styleconv " + version);
    app_->require_subcommand(1);
    // A path may begin with a slash, on every system.
    app_->allow_windows_style_options(false);
    app_->get_formatter()->label("SUBCOMMAND", "COMMAND");
}

CommandLine::~CommandLine() = default;

Command CommandLine::AddCommand(const std::string& name, const std::string& description, const Runner& run) {
    CLI::App* const command = app_->add_subcommand(name, description);
    command->group("Commands");
    command->callback([this, run] { run_ = run; });
    return Command(*command);
}

std::vector<Command> CommandLine::Commands() {
    std::vector<Command> commands;
    for (CLI::App* const command : app_->get_subcommands({})) {
        commands.emplace_back(*command);
    }
    return commands;
}

ExitStatus CommandLine::Parse(int argc, char** argv, Runner& run) {
    try {
        app_->parse(ReversedArguments(argc, argv));
    } catch (const CLI::ParseError& error) {
        return Explain(*app_, error);
    }
    run = run_;
    return kDone;
}

} // namespace styleconv

// The command line: commands with their arguments. The one place that knows the library that parses it, whose
// headers take longer to compile than all else in the tool.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace styleconv {

enum ExitStatus : int {
    kDone = 0,
    kInputFault = 1, // what was given could not be converted, or the result could not be written
    kUsageFault = 2, // the command line is wrong
};

/// What a command does when its arguments are read.
using Runner = std::function<ExitStatus()>;

/// Keeps the text of an option and returns nothing, or returns what was expected instead ("a number").
using TextReader = std::function<std::string(const std::string& text)>;

/// The arguments of one command. What they are read into must live until the command has run. `kind` is the
/// word for an option's value in the help ("PATH"); without one it is the value's type.
class Command {
public:
    explicit Command(CLI::App& app) : app_(&app) {}

    /// FILE, which must be given.
    void AddFile(std::string& path, const std::string& description);
    /// The same for one file and more.
    void AddFiles(std::vector<std::string>& paths, const std::string& description);

    void AddFlag(const std::string& name, bool& value, const std::string& description);
    /// Not an empty one.
    void AddText(const std::string& name, std::string& value, const std::string& kind,
                 const std::string& description);
    /// An option that may be given any number of times. Each time the value is one word, whatever it is.
    void AddTexts(const std::string& name, std::vector<std::string>& values, const std::string& kind,
                  const std::string& description);
    void AddIntegers(const std::string& name, std::vector<std::int64_t>& values, const std::string& kind,
                     const std::string& description);
    /// One of `choices`. The help shows the value that it has before.
    void AddChoice(const std::string& name, std::string& value, const std::vector<std::string>& choices,
                   const std::string& description);
    /// An option whose one value asks for what happens anyway. The help leaves it out.
    void AddOnlyChoice(const std::string& name, const std::string& choice);
    void AddReader(const std::string& name, const TextReader& read, const std::string& kind,
                   const std::string& description);

private:
    CLI::App* app_;
};

/// All commands of the tool.
class CommandLine {
public:
    CommandLine(const std::string& description, const std::string& version);
    ~CommandLine();
    CommandLine(const CommandLine&) = delete;
    CommandLine& operator=(const CommandLine&) = delete;

    Command AddCommand(const std::string& name, const std::string& description, const Runner& run);
    /// Those that were added.
    std::vector<Command> Commands();

    /// Reads the arguments. Where they ask for a command, `run` is what it does; where not, `run` is empty
    /// and help, version or fault are on standard output or standard error.
    ExitStatus Parse(int argc, char** argv, Runner& run);

private:
    std::unique_ptr<CLI::App> app_;
    Runner run_;
};

} // namespace styleconv

// The lines of an input are the arguments of a command.

#include <algorithm>
#include <sstream>

#include "FuzzSupport.h"
#include "driver/CommandLine.h"
#include "support/Console.h"

namespace {

/// How many lines of the console and the log begin as a counted message does.
int CountedLines(const std::string& text) {
    std::istringstream lines(text);
    int count = 0;
    for (std::string line; std::getline(lines, line);) {
        count += line.starts_with("Error :") || line.starts_with("Warning :") ? 1 : 0;
    }
    return count;
}

void RequireSettings(const Settings& settings, const std::vector<std::string>& arguments) {
    Require(!settings.firstName.empty(), "a run has a file");
    Require(!settings.cobolSourceGiven || !settings.schemaSourceGiven, "a run has one direction");
    Require(!settings.validate || settings.schemaName.empty() != settings.instanceName.empty(),
            "one document is validated");
    for (const auto value : {&Settings::firstName, &Settings::sourceName, &Settings::instanceName,
                             &Settings::schemaName, &Settings::copybookName, &Settings::mappingName,
                             &Settings::prefix, &Settings::directiveFile}) {
        Require(std::any_of(arguments.begin(), arguments.end(),
                            [&](const auto& a) { return a.ends_with(settings.*value); }),
                "a value is an argument or its end");
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::string> arguments = Split(data, size, '\n');
    std::vector<char*> argv(1);
    for (std::string& argument : arguments) {
        argument = argument.c_str();  // without what follows a NUL
        argv.push_back(argument.data());
    }
    const int argc = static_cast<int>(argv.size());
    const CKTFreshRun run(size);
    Settings settings;
    ScanForLog(argc, argv.data());
    const std::optional<int> status = ReadCommandLine(argc, argv.data(), settings);
    RestoreStreams();
    Require(!status || *status == 0 || *status == 1, "a command that is no run ends with 0 or 1");
    if (!status) {
        RequireSettings(settings, arguments);
    }
    Require(CountedLines(CKTFreshRun::Console() + ReadWhole("dorvex.log")) ==
                m_nErrorCount + m_nWarningCount,
            "each message is counted once");
    return 0;
}

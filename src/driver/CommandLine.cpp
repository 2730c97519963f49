// The command line, read once from left to right, after one look ahead for the log. An option is
// found by the first row of the table whose name the argument begins with, so "-Cname" holds its
// value and "-quiet" is -Q. The last value of an option counts. -V ends the reading: what follows
// it is ignored. The usage text keeps silent about -Q, -LOG, -? and -HELP, and -X shares its
// setting with the .XSD file argument; both are wanted. Whether files exist is left to the runs.

#include "driver/CommandLine.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iostream>
#include <string_view>

#include "driver/Complaints.h"
#include "support/Console.h"
#include "support/Text.h"

namespace {

constexpr std::string_view kUsageText =
    R"(Usage :
dorvex [options] <filename>

dorvex [-c -x -m -p -d -noprompt -nocountin] <COBOL filename>
dorvex [-c -p -noprompt -nocountin -unique] <XML Schema filename>
dorvex [-v] (<XML filename> | <XML Schema filename>)

Options:

   -c|-C <filename>     Specify a filename for the COBOL file being
                        created.

   -x|-X <filename>     Specify a <filename> for the XML schema file
                        being created.  Note: This option is for the
                        processing of COBOL programs/copyfiles only.

   -m|-M <filename>     Specify a <filename> for the mapping file
                        to be used or created.  Note: This option is
                        for the processing of COBOL programs/copyfiles
                        only.

   -p|-P <prefix>       Specify a prefix to append to any generated
                        data names.

   -d|-D <filename>     Specify a compiler directive file <filename>
                        to use when preprocessing a COBOL file.

   -v|-V <filename>     Perform XML schema or instance document
                        validation on <filename>.

   -noprompt |          Prevent user prompt for the overwrite of existing
   -NOPROMPT            files.

   -nocountin |         Prevent generation of "count in" clauses for
   -NOCOUNTIN           generated data items.  This option overrides any
                        <cobol-count-in> mapping file values.

   -unique |            Ensure that all COBOL data names are unique within the
   -UNIQUE              generated COBOL data structure.

)";

/// The period and three letters. What follows them does not count: ".xsdx" is taken for ".XSD".
constexpr int kExtensionLength = 4;

/// One option: recognised by its name as a case-insensitive prefix; a value option fills `value`, a
/// switch sets `flag` to `state`; one option does both, and some neither.
struct Option {
    const char* name;
    std::string Settings::*value;
    bool Settings::*flag;
    bool state;
};

/// In the order of the tests: a short option matches everything that begins with it.
constexpr std::array kOptions = {
    Option{"-C", &Settings::copybookName, nullptr, false},
    Option{"-X", &Settings::schemaName, nullptr, false},
    Option{"-M", &Settings::mappingName, nullptr, false},
    Option{"-P", &Settings::prefix, nullptr, false},
    Option{"-D", &Settings::directiveFile, nullptr, false},
    Option{"-V", &Settings::firstName, &Settings::validate, true},
    Option{"-Q", nullptr, nullptr, false},
    Option{"-LOG", nullptr, nullptr, false},
    Option{"-NOPROMPT", nullptr, &Settings::promptForOverwrite, false},
    Option{"-NOCOUNTIN", nullptr, &Settings::countInClauses, false},
    Option{"-UNIQUE", nullptr, &Settings::uniqueDataNames, true},
};

bool StartsWith(const char* argument, const char* start) {
    return my_strnicmp(argument, start, static_cast<int>(std::strlen(start))) == 0;
}

/// Marks the kind of source that a file argument gives, unless the other kind was given before.
/// Only the first file argument gets as far as this, so the complaint guards a state that does not
/// come about.
void MarkSource(const std::string& name, bool otherGiven, bool& given) {
    if (otherGiven) {
        Report<DriverMessage::IgnoredFile>(name);
    } else {
        given = true;
    }
}

/// Takes the first file argument; a further one is a warning, and the run goes on without it.
std::optional<int> TakeFileArgument(const std::string& name, Settings& settings) {
    if (!settings.firstName.empty()) {
        Report<DriverMessage::SecondSource>(settings.firstName, name);
        return {};
    }
    settings.firstName = name;
    const bool document = HasExtension(name, ".XML");
    if (HasExtension(name, ".XSD")) {
        MarkSource(name, settings.cobolSourceGiven, settings.schemaSourceGiven);
        settings.schemaName = name;
    } else if (document || HasExtension(name, ".CBL") || HasExtension(name, ".CPY")) {
        MarkSource(name, settings.schemaSourceGiven, settings.cobolSourceGiven);
        settings.sourceName = name;
        if (document) {
            settings.instanceName = name;
        }
    } else {
        Report<DriverMessage::FileType>(name);
        Usage();
        return 1;
    }
    return {};
}

/// Judges the document named by -V. The names that other arguments gave no longer count: one
/// document is validated. An unknown type ends the program without the usage text, unlike that of a
/// file argument.
std::optional<int> TakeValidationName(Settings& settings) {
    settings.schemaName.clear();
    settings.instanceName.clear();
    if (HasExtension(settings.firstName, ".XML")) {
        settings.instanceName = settings.firstName;
    } else if (HasExtension(settings.firstName, ".XSD")) {
        settings.schemaName = settings.firstName;
    } else {
        Report<DriverMessage::FileType>(settings.firstName);
        return 1;
    }
    return {};
}

}  // namespace

bool HasExtension(const std::string& name, const char* extension) {
    return my_strnicmp(my_strrchr(name.c_str(), "."), extension, kExtensionLength) == 0;
}

void Usage() {
    if (!IsQuiet()) {
        // Through the counting operator, so that the banner precedes it.
        std::cout << kUsageText.data();
    }
}

void ScanForLog(int argc, char** argv) {
    // -P and -V are left out on purpose: behind them "-log" opens the log and is their value too.
    static constexpr std::array kValueOptions = {"-C", "-X", "-M", "-D"};
    for (int i = 1; i < argc; ++i) {
        const bool isValue =
            i > 1 && std::any_of(kValueOptions.begin(), kValueOptions.end(),
                                 [&](const char* o) { return my_stricmp(argv[i - 1], o) == 0; });
        if (StartsWith(argv[i], "-LOG") && !isValue) {
            OpenLog();
            return;
        }
    }
}

std::optional<int> ReadCommandLine(int argc, char** argv, Settings& settings) {
    for (int i = 1; i < argc; ++i) {
        const char* argument = argv[i];
        // An empty argument is a file name as well, of no known type.
        if (*argument != '-') {
            if (const std::optional<int> status = TakeFileArgument(argument, settings)) {
                return status;
            }
            continue;
        }
        // These two are compared as a whole: "-helpme" is no option.
        if (my_stricmp(argument, "-?") == 0 || my_stricmp(argument, "-HELP") == 0) {
            Usage();
            return 0;
        }
        const auto option = std::find_if(kOptions.begin(), kOptions.end(), [&](const Option& o) {
            return StartsWith(argument, o.name);
        });
        if (option == kOptions.end()) {
            Report<DriverMessage::InvalidOption>(argument);
            return 1;
        }
        if (option->value != nullptr) {
            i = ProcessCmdLineNameValue(argc, argv, i, option->name, settings.*(option->value));
        }
        if (option->flag != nullptr) {
            settings.*(option->flag) = option->state;
        }
        // Every option before it has had its effect, -Q among them.
        if (settings.validate) {
            return TakeValidationName(settings);
        }
        // At once and not after the pass, so complaints of options before it are seen.
        if (StartsWith(option->name, "-Q")) {
            SilenceOutput();
        }
    }
    if (settings.firstName.empty()) {
        Report<DriverMessage::NoSource>();
        return 1;
    }
    return {};
}

int ProcessCmdLineNameValue(int argc, char** argv, int index, const char* option,
                            std::string& value) {
    // By bytes: the name of an option is plain ASCII, and a file name may be no text of the locale.
    const std::size_t length = std::strlen(option);
    if (std::strlen(argv[index]) > length) {
        value = argv[index] + length;
        return index;
    }
    // The next argument is the value whatever it looks like, an option included.
    if (index + 1 < argc) {
        value = argv[index + 1];
    } else {
        Report<DriverMessage::IncompleteOption>(argv[index]);
    }
    return index + 1;
}

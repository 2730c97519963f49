#ifndef DORVEX_DRIVER_COMMANDLINE_H
#define DORVEX_DRIVER_COMMANDLINE_H

#include <optional>
#include <string>

/// What the command line asks for, as plain values for the run that is chosen. Texts that were not
/// given are empty; names are bytes, as given. A slot that several arguments share holds the last
/// one.
struct Settings {
    std::string firstName;      ///< the first file argument, or the value of -V
    std::string sourceName;     ///< a .CBL, .CPY or .XML file argument
    std::string instanceName;   ///< a .XML file argument or -V value
    std::string schemaName;     ///< a .XSD file argument or -V value, or the value of -X
    std::string copybookName;   ///< -C
    std::string mappingName;    ///< -M
    std::string prefix;         ///< -P
    std::string directiveFile;  ///< -D
    bool promptForOverwrite = true;
    bool countInClauses = true;
    bool uniqueDataNames = false;
    bool cobolSourceGiven = false;
    bool schemaSourceGiven = false;
    bool validate = false;
};

/// Says whether what stands behind the last period of `name` begins as `extension` does (".XSD" and
/// the like, with the period), in any case.
bool HasExtension(const std::string& name, const char* extension);

/// Prints the usage text on standard output; nothing while quiet.
void Usage();

/// Opens the log when a -LOG option is on the command line that is not the value of another option.
void ScanForLog(int argc, char** argv);

/// Reads the options and the file argument into `settings`, which holds the defaults before;
/// messages go to standard output. Returns the exit status when the program is to end here, 0 after
/// a call for help and 1 after a complaint, nothing when a run is to be chosen. -Q silences
/// standard output as soon as it is read.
std::optional<int> ReadCommandLine(int argc, char** argv, Settings& settings);

/// Reads the value of the option `option` (such as "-C") that argument `index` begins with: the
/// rest of the argument or, without one, the next argument. Returns the index of the last argument
/// used. A missing value is an error and leaves `value` as it is.
int ProcessCmdLineNameValue(int argc, char** argv, int index, const char* option,
                            std::string& value);

#endif

#include <iostream>

#include "driver/Runs.h"
#include "support/Console.h"
#include "xml/KTDOMParser.h"

int RunValidation(const Settings& settings) {
    CKTDOMParser parser;
    WriteLine(std::cout,
              {"Performing validation of \"", settings.firstName, "\", ignoring other options"});
    if (!settings.schemaName.empty()) {
        parser.ParseFile(settings.schemaName, CKTDOMParser::XML_SCHEMA, true);
    } else if (settings.instanceName.empty()) {
        WriteLine(std::cout, {"Error : Failed to specify XML Schema filename"});
        RestoreStreams();
        return 1;
    } else {
        std::cout << "\n";
        WriteLine(std::cout, {"Validating \"", settings.instanceName,
                              "\" for well-formedness and schema conformity."});
        parser.ParseFile(settings.instanceName, CKTDOMParser::XML_DOCUMENT, false);
        std::cout << "\n";
        WriteLine(std::cout,
                  {"Validating \"", settings.instanceName, "\" for schema conformity. "});
        parser.ParseFile(settings.instanceName, CKTDOMParser::XML_DOCUMENT, true);
    }
    parser.DisplayErrorSummary();
    RestoreStreams();
    return ExitStatus();
}

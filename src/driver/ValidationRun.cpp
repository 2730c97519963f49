#include <iostream>

#include "driver/Runs.h"
#include "support/Console.h"
#include "xml/KTDOMParser.h"

namespace {

/// Says what a lax and then a strict pass find, each behind its line. A document that passes the
/// strict one in silence passes the other too and is read once; otherwise what the strict pass
/// found waits until the lax one has spoken.
void ValidateDocument(CKTDOMParser& parser, const std::string& name) {
    std::cout << "\n";
    WriteLine(std::cout, {"Validating \"", name, "\" for well-formedness and schema conformity."});
    std::cout.flush();
    const bool flawless = parser.IsFlawless(name);
    if (!flawless) {
        parser.CheckDocument(name, false);
    }
    std::cout << "\n";
    WriteLine(std::cout, {"Validating \"", name, "\" for schema conformity. "});
    if (!flawless && !parser.ReportHeldComplaints()) {
        parser.CheckDocument(name, true);
    }
}

}  // namespace

std::optional<int> RunValidation(const Settings& settings) {
    CKTDOMParser parser;
    WriteLine(std::cout,
              {"Performing validation of \"", settings.firstName, "\", ignoring other options"});
    if (!settings.schemaName.empty()) {
        parser.ParseFile(settings.schemaName, CKTDOMParser::XML_SCHEMA, true);
    } else if (settings.instanceName.empty()) {
        WriteLine(std::cout, {"Error : Failed to specify XML Schema filename"});
        return 1;
    } else {
        ValidateDocument(parser, settings.instanceName);
    }
    parser.DisplayErrorSummary();
    return {};
}

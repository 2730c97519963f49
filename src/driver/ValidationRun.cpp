// The run that checks one document and writes nothing. A schema is loaded, a document is passed
// over twice, first without and then with validation; the line of the first pass speaks of schema
// conformity all the same. What both find is said and counted twice. All that is wanted. No result
// makes the exit status: the messages counted do.

#include <iostream>

#include "driver/Complaints.h"
#include "driver/Runs.h"
#include "support/Console.h"
#include "xml/KTDOMParser.h"

namespace {

/// Says what a lax and then a strict pass find, each behind its line. A document that passes the
/// strict one in silence passes the other too and is read once; otherwise what the strict pass
/// found waits until the lax one has spoken.
void ValidateDocument(CKTDOMParser& parser, const std::string& name) {
    std::cout << "\n";
    Report<DriverMessage::LaxPass>(name);
    std::cout.flush();
    const bool flawless = parser.IsFlawless(name);
    if (!flawless) {
        parser.CheckDocument(name, false);
    }
    std::cout << "\n";
    Report<DriverMessage::StrictPass>(name);
    if (!flawless && !parser.ReportHeldComplaints()) {
        parser.CheckDocument(name, true);
    }
}

}  // namespace

std::optional<int> RunValidation(const Settings& settings) {
    CKTDOMParser parser;
    Report<DriverMessage::Validation>(settings.firstName);
    if (!settings.schemaName.empty()) {
        parser.ParseFile(settings.schemaName, CKTDOMParser::XML_SCHEMA, true);
    } else if (settings.instanceName.empty()) {
        // A guard: -V sets one of the two or ends the program.
        Report<DriverMessage::NoSchemaName>();
        return 1;
    } else {
        ValidateDocument(parser, settings.instanceName);
    }
    parser.DisplayErrorSummary();
    return {};
}

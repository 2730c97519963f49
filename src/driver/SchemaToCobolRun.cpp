// The steps of a run from schema to copybook, in order: load the schema with all that it reaches,
// read the trees of the set, ask about an existing copybook, write it, sum up. The first step alone
// can stop the run; what the later ones find is counted. -X, -M and -D have no effect here. The
// copybook stands beside the schema and, unlike that of a COBOL run, has no "-dorvex" in its name.

#include <iostream>
#include <memory>
#include <string_view>

#include "driver/Complaints.h"
#include "driver/Environment.h"
#include "driver/Runs.h"
#include "schema/KTCOBOLGenerator.h"
#include "schema/KTXMLSchemaDoc.h"
#include "schema/SchemaSet.h"
#include "support/Console.h"
#include "support/Files.h"
#include "support/Text.h"
#include "xml/KTDOMParser.h"
#include "xml/Locations.h"

namespace {

/// The schema's name with its extension replaced.
std::string DefaultCopybookName(const std::string& schemaName) {
    const std::size_t extension = std::string_view(my_strrchr(schemaName.c_str(), ".")).size();
    return schemaName.substr(0, schemaName.size() - extension) + ".cpy";
}

/// Guards the run: a command line that chooses it always names a schema.
int StopWithoutNames(const Settings& settings) {
    Report<DriverMessage::NoSchemaName>();
    if (settings.copybookName.empty()) {
        Report<DriverMessage::NoCopybookName>();
    }
    return 1;
}

void WriteCopybook(CKTDOMParser& parser, const Settings& settings, const std::string& schemaPath,
                   const std::string& copybookName) {
    const std::unique_ptr<CKTXMLElement> root = parser.getXMLDocument();
    CKTLoadedSchemaFiles files(parser);
    CKTSchemaSet set(files);
    // Loads what the schema includes and imports, and says so, before any question is asked.
    CKTXMLSchemaDoc document(root.get(), nullptr, schemaPath, set);
    CKTCOBOLGenerator generator(&document);
    generator.ChooseHeads(ChosenHeads());
    const bool prompt = settings.promptForOverwrite;
    // Without prompting an existing file is overwritten. A declined one ends the run without a
    // summary.
    if (FileExists(copybookName, prompt) && prompt) {
        return;
    }
    generator.GenerateFile(copybookName, settings.prefix, settings.countInClauses,
                           settings.uniqueDataNames);
    parser.DisplayErrorSummary();
}

}  // namespace

std::optional<int> RunSchemaToCobol(const Settings& settings) {
    CKTDOMParser parser;
    const std::string& schemaName = settings.schemaName;
    if (schemaName.empty()) {
        return StopWithoutNames(settings);
    }
    Report<DriverMessage::Checking>(schemaName);
    const std::string copybookName =
        settings.copybookName.empty() ? DefaultCopybookName(schemaName) : settings.copybookName;
    if (!parser.ParseFile(schemaName, CKTDOMParser::XML_SCHEMA, true)) {
        std::cout << "\n";
        parser.DisplayErrorSummary();
        // Behind the summary, and counted as nothing: the summary has told the errors.
        Report<DriverMessage::NotCreated>(copybookName);
        return 1;
    }
    Report<DriverMessage::NoSchemaErrors>(schemaName);
    // The document goes by the full name of the file that was opened, a catalog's included.
    const std::string schemaPath = OpenedLocation(schemaName);
    WriteCopybook(parser, settings, schemaPath, copybookName);
    return {};
}

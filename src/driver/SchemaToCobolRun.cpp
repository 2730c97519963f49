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
    CKTXMLSchemaDoc document(root.get(), nullptr, schemaPath, set);
    CKTCOBOLGenerator generator(&document);
    generator.ChooseHeads(ChosenHeads());
    const bool prompt = settings.promptForOverwrite;
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
        Report<DriverMessage::NotCreated>(copybookName);
        return 1;
    }
    Report<DriverMessage::NoSchemaErrors>(schemaName);
    const std::string schemaPath = OpenedLocation(schemaName);
    WriteCopybook(parser, settings, schemaPath, copybookName);
    return {};
}

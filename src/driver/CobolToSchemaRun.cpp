// The steps of a run from COBOL to schema, in order: choose the names, have the compiler write the
// dictionary, read it, clean up, and write mapping file, schema and copybook. Each step that fails
// says so itself, and the run ends.

#include <filesystem>
#include <iostream>
#include <memory>

#include "driver/ByProducts.h"
#include "driver/CobolCompiler.h"
#include "driver/CommandLine.h"
#include "driver/Complaints.h"
#include "driver/Runs.h"
#include "support/Console.h"
#include "support/Files.h"
#include "support/FilesUsed.h"
#include "support/Text.h"
#include "xml/KTDOMParser.h"
#include "xmlgen/KTXMLGenerator.h"

namespace {

/// The files of one run.
struct FileNames {
    std::string base;           ///< the source without its extension
    std::string dictionary;     ///< what the compiler writes
    std::string temporaryCopy;  ///< what is compiled in the source's place; empty when it is not
    std::string schema;
    std::string copybook;
};

/// Ends the report on a document that could not be parsed.
void SumUpParsing(CKTDOMParser& parser) {
    std::cout << "\n";
    parser.DisplayErrorSummary();
}

/// Says whether the compiler could overwrite something of the user's by writing `dictionary`: a
/// file, a link that leads nowhere, or a file that goes by the name without the quotes it is given
/// in.
bool IsTaken(const std::string& dictionary) {
    std::error_code error;
    return FileExists(dictionary, false) ||
           std::filesystem::is_symlink(std::filesystem::symlink_status(dictionary, error)) ||
           dictionary.find('"') != std::string::npos;
}

/// Makes the temporary copy that is compiled in the source's place. A source that cannot be read is
/// the compiler's to complain about. False after a message when there is no room for the copy.
bool MakeTemporaryCopy(const std::string& source, bool readable, FileNames& names) {
    const std::string stem = GetTemporaryFilename(".xml .cbl");
    if (stem.empty()) {
        return false;
    }
    names.dictionary = stem + ".xml";
    names.temporaryCopy = stem + ".cbl";
    return CopyFileToFile(source, names.temporaryCopy) || !readable;
}

/// Splits the source and chooses what is compiled: a copybook is always compiled as a copy of its
/// own, a program only when the dictionary would overwrite a file of the user's. False after a
/// message.
bool ChooseNames(const Settings& settings, FileNames& names) {
    const std::string& source = settings.sourceName;
    std::string extension = my_strrchr(source.c_str(), ".");
    // A name that is all extension has none.
    if (extension.size() == source.size()) {
        extension.clear();
    }
    names.base = source.substr(0, source.size() - extension.size());
    const bool program = HasExtension(extension, ".CBL");
    if (!program && !HasExtension(extension, ".CPY")) {
        Report<DriverMessage::FileType>(source);
        std::cout << "\n";
        Usage();
        return false;
    }
    const bool readable = IsReadable(source);
    if (!readable) {
        Report<DriverMessage::UnreadableSource>(source);
    }
    names.dictionary = names.base + ".xml";
    if ((!program || IsTaken(names.dictionary)) && !MakeTemporaryCopy(source, readable, names)) {
        return false;
    }
    names.schema = settings.schemaName.empty() ? names.base + ".xsd" : settings.schemaName;
    names.copybook =
        settings.copybookName.empty() ? names.base + "-dorvex" + ".cpy" : settings.copybookName;
    return true;
}

/// Compiles; false after a message when the run ends here.
bool Compile(const Settings& settings, const FileNames& names) {
    const std::string& source = settings.sourceName;
    const std::string compileName =
        ProcessSpaceyFilename(names.temporaryCopy.empty() ? source : names.temporaryCopy, nullptr);
    const std::string directives =
        settings.directiveFile.empty()
            ? std::string()
            : "@" + ProcessSpaceyFilename(settings.directiveFile, nullptr);
    // What the compiler reads is read for this run.
    NoteFileRead(source);
    NoteFileRead(settings.directiveFile);
    Report<DriverMessage::Checking>(source);
    switch (RunCobolCompiler(directives, compileName)) {
        case CompilerResult::NotStarted:
            Report<DriverMessage::NotStarted>();
            return false;
        case CompilerResult::NotReturned:
            Report<DriverMessage::NotReturned>();
            return false;
        case CompilerResult::NotCompiled:
            Report<DriverMessage::NotCompiled>(source);
            return false;
        case CompilerResult::Compiled:
            break;
    }
    std::cout << "\n";
    return true;
}

/// The outputs of one run and the settings that all of them share.
class CKTOutputs {
public:
    CKTOutputs(CKTXMLGenerator& generator, const Settings& settings, const FileNames& names)
        : m_Generator(generator),
          m_Settings(settings),
          m_Names(names),
          m_sSource(names.base + ".xml") {}

    /// Writes one output, asking first when its file exists.
    void Write(const std::string& name, CKTXMLGenerator::FILE_TYPE type,
               const std::string& prefix) {
        const bool prompt = m_Settings.promptForOverwrite;
        if (!(FileExists(name, prompt) && prompt)) {
            Generate(type, prefix);
        }
    }

    /// Writes the mapping file unless one is there and to be kept, and loads it into `mapping`.
    /// False after a message when it cannot be parsed.
    bool TakeMapping(CKTXMLCOBOLExternalMapping& mapping) {
        const std::string& name = m_Settings.mappingName;
        if (!FileExists(name, m_Settings.promptForOverwrite)) {
            Generate(CKTXMLGenerator::EXTERNAL_MAPPING, "");
        }
        CKTDOMParser parser;
        if (!parser.ParseFile(name, CKTDOMParser::XML_DOCUMENT, false)) {
            SumUpParsing(parser);
            Report<DriverMessage::NotValidated>(name);
            return false;
        }
        if (const std::unique_ptr<CKTXMLElement> root = parser.getXMLDocument()) {
            mapping.Initialize(root.get(), nullptr);
        }
        m_Generator.setXMLCOBOLExternalMapping(&mapping);
        m_Generator.ReportIdleMapping(name);
        return true;
    }

private:
    void Generate(CKTXMLGenerator::FILE_TYPE type, const std::string& prefix) {
        m_Generator.GenerateFile(m_sSource, m_Settings.mappingName, m_Names.schema,
                                 m_Names.copybook, type, prefix, m_Settings.countInClauses);
    }

    CKTXMLGenerator& m_Generator;
    const Settings& m_Settings;
    const FileNames& m_Names;
    std::string m_sSource;
};

/// Writes the outputs of a compiled source. Returns 0, or 1 when the run ends with a message.
int WriteOutputs(CKTDOMParser& parser, const Settings& settings, const FileNames& names,
                 const CKTByProducts& byProducts) {
    const std::unique_ptr<CKTXMLElement> root = parser.getXMLDocument();
    CKTXMLCOBOLExternalMapping mapping;
    CKTXMLGenerator generator;
    generator.setCOBOLDataDictionary(root.get());
    // The dictionary is in memory, so no stop that follows leaves a by-product behind.
    byProducts.Delete();
    if (!generator.HasRecord()) {
        if (generator.HasProgram()) {
            Report<DriverMessage::NoRecord>(settings.sourceName);
        } else {
            Report<DriverMessage::NoProgram>(settings.sourceName);
        }
        return 1;
    }
    CKTOutputs outputs(generator, settings, names);
    if (!settings.mappingName.empty() && !outputs.TakeMapping(mapping)) {
        return 1;
    }
    outputs.Write(names.schema, CKTXMLGenerator::XML_SCHEMA, "");
    outputs.Write(names.copybook, CKTXMLGenerator::ENHANCED_COBOL, settings.prefix);
    return 0;
}

}  // namespace

std::optional<int> RunCobolToSchema(const Settings& settings) {
    CKTDOMParser parser;
    if (settings.sourceName.empty()) {
        Report<DriverMessage::NoCobolName>();
        return 1;
    }
    FileNames names;
    if (!ChooseNames(settings, names)) {
        return 1;
    }
    // Takes its stamps before the compiler runs.
    const CKTByProducts byProducts(names.dictionary, names.temporaryCopy);
    if (!Compile(settings, names)) {
        return 1;
    }
    if (!parser.ParseFile(names.dictionary, CKTDOMParser::XML_DOCUMENT, false)) {
        SumUpParsing(parser);
        Report<DriverMessage::NotCreated>(names.schema);
        return 1;
    }
    if (WriteOutputs(parser, settings, names, byProducts) != 0) {
        return 1;
    }
    parser.DisplayErrorSummary();
    return {};
}

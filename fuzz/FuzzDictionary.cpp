// A data dictionary and, perhaps, a mapping file become a mapping file, a schema, a copybook and a
// service description.

#include <memory>

#include "FuzzSupport.h"
#include "xmlgen/KTXMLGenerator.h"

namespace {

/// Null when the file cannot be parsed.
std::unique_ptr<CKTXMLElement> Parse(CKTDOMParser& parser, const std::string& name) {
    return parser.ParseFile(name, CKTDOMParser::XML_DOCUMENT, false) ? parser.getXMLDocument()
                                                                     : nullptr;
}

void WriteOutputs(CKTXMLGenerator& generator, bool countIn) {
    const auto generate = [&](CKTXMLGenerator::FILE_TYPE type) {
        return generator.GenerateFile("dict.xml", "out.map", "out.xsd", "out.cpy", type, "WS-",
                                      countIn);
    };
    Require(!generate(CKTXMLGenerator::INTERNAL_MAPPING), "a service description has no file");
    const std::string console = CKTFreshRun::Console();
    WriteWhole("service.xml", console.substr(0, console.find("</service>") + 11));
    Require(generate(CKTXMLGenerator::EXTERNAL_MAPPING), "the mapping file is written");
    Require(generate(CKTXMLGenerator::XML_SCHEMA), "the schema is written");
    Require(generate(CKTXMLGenerator::ENHANCED_COBOL), "the copybook is written");
    for (const char* name : {"out.map", "out.xsd", "service.xml"}) {
        CKTDOMParser parser;
        Require(Parse(parser, name) != nullptr, std::string(name) + " is well-formed");
    }
    RequireFixedFormat(ReadWhole("out.cpy"));
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string> files = Split(data, size, kNextFile);
    const CKTFreshRun run(size);
    WriteWhole("dict.xml", files.front());
    WriteWhole("given.map", files.back());
    CKTDOMParser parser;
    CKTDOMParser mappingParser;
    const std::unique_ptr<CKTXMLElement> root = Parse(parser, "dict.xml");
    const std::unique_ptr<CKTXMLElement> mappingRoot =
        files.size() > 1 ? Parse(mappingParser, "given.map") : nullptr;
    CKTXMLCOBOLExternalMapping mapping;
    CKTXMLGenerator generator;
    generator.setCOBOLDataDictionary(root.get());
    if (mappingRoot != nullptr) {
        mapping.Initialize(mappingRoot.get(), nullptr);
        generator.setXMLCOBOLExternalMapping(&mapping);
    }
    if (generator.HasRecord()) {
        WriteOutputs(generator, size % 2 == 0);
    }
    return 0;
}

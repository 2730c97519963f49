// The floor of the benchmark: what a bare Xerces-C program spends on a file, with the parser
// features that the real program sets. Nothing is read from the document that the parser builds.
//
//     floor schema FILE   load FILE as a grammar, then parse it
//     floor load FILE     load FILE as a grammar
//     floor plain FILE    one pass without schema and validation
//
// The exit status is 0 when there was no error and no warning, 1 when there was one, 2 for bad
// usage.

#include <exception>
#include <functional>
#include <iostream>
#include <map>
#include <string>

#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/validators/common/Grammar.hpp>

namespace {

using xercesc::XercesDOMParser;

class CKTPlatform {
public:
    CKTPlatform() { xercesc::XMLPlatformUtils::Initialize(); }
    ~CKTPlatform() { xercesc::XMLPlatformUtils::Terminate(); }
    CKTPlatform(const CKTPlatform&) = delete;
    CKTPlatform& operator=(const CKTPlatform&) = delete;
};

class CKTCountingHandler : public xercesc::HandlerBase {
public:
    void warning(const xercesc::SAXParseException&) override { ++m_nProblems; }
    void error(const xercesc::SAXParseException&) override { ++m_nProblems; }
    void fatalError(const xercesc::SAXParseException&) override { ++m_nProblems; }
    // The parser calls this at the start of every parse; the count is of the whole run.
    void resetErrors() override {}

    [[nodiscard]] int Problems() const { return m_nProblems; }

private:
    int m_nProblems = 0;
};

void Configure(XercesDOMParser& parser, CKTCountingHandler& handler) {
    parser.setDoNamespaces(true);
    parser.setDoSchema(true);
    parser.setHandleMultipleImports(true);
    parser.setIncludeIgnorableWhitespace(false);
    parser.setCreateEntityReferenceNodes(false);
    parser.setErrorHandler(&handler);
}

bool LoadGrammar(XercesDOMParser& parser, const std::string& file) {
    parser.setValidationScheme(XercesDOMParser::Val_Auto);
    const bool toCache = true;
    return parser.loadGrammar(file.c_str(), xercesc::Grammar::SchemaGrammarType, toCache) !=
           nullptr;
}

bool LoadAndParse(XercesDOMParser& parser, const std::string& file) {
    if (!LoadGrammar(parser, file)) {
        return false;
    }
    parser.useCachedGrammarInParse(true);
    parser.parse(file.c_str());
    return true;
}

bool ParsePlain(XercesDOMParser& parser, const std::string& file) {
    parser.setDoSchema(false);
    parser.setValidationScheme(XercesDOMParser::Val_Never);
    parser.parse(file.c_str());
    return true;
}

using Task = std::function<bool(XercesDOMParser&, const std::string&)>;

int Run(const Task& task, const std::string& file) {
    const CKTPlatform platform;
    CKTCountingHandler handler;
    XercesDOMParser parser;
    Configure(parser, handler);
    try {
        const bool done = task(parser, file);
        if (!done || handler.Problems() > 0) {
            std::cerr << "floor: " << file << ": " << handler.Problems() << " problem(s)\n";
            return 1;
        }
    } catch (const xercesc::XMLException&) {
        std::cerr << "floor: " << file << ": the parser gave up\n";
        return 1;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::map<std::string, Task> tasks{
        {"schema", LoadAndParse}, {"load", LoadGrammar}, {"plain", ParsePlain}};
    const auto task = argc == 3 ? tasks.find(argv[1]) : tasks.end();
    if (task == tasks.end()) {
        std::cerr << "usage: floor schema|load|plain FILE\n";
        return 2;
    }
    try {
        return Run(task->second, argv[2]);
    } catch (const std::exception& problem) {
        std::cerr << "floor: " << problem.what() << '\n';
        return 1;
    }
}

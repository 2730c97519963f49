// The facade of the parser library. Everything of the library lives in one object behind it: the
// reader that turns events into trees, the guard that opens the files, the error handler. Each way
// of reading sets the reader up as a whole, so that nothing depends on what was read before.
// Exceptions of the library end here in one line each. One of them leaves a document that counts as
// parsed, and one word of these lines is misspelt; both are wanted.

#include "xml/KTDOMParser.h"

#include <iostream>
#include <new>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/validators/common/Grammar.hpp>

#include "support/Console.h"
#include "support/Limits.h"
#include "support/Progress.h"
#include "support/Text.h"
#include "xml/Complaints.h"
#include "xml/InputGuard.h"
#include "xml/InputSources.h"
#include "xml/KTDOMErrorHandler.h"
#include "xml/KTDOMFormatTarget.h"
#include "xml/LibraryValidator.h"
#include "xml/Paths.h"
#include "xml/Platform.h"
#include "xml/TreeReader.h"

namespace {

void AnnounceSchema(const std::string& fileName) {
    std::cout << "\n";
    Report<XmlMessage::Checking>(fileName);
    std::cout.flush();
}

/// How a file is read.
struct Reading {
    bool validates = false;
    bool isSchema = false;
};

}  // namespace

/// What the facade holds of the library, which has to be up longer than any of it.
class CKTDOMParser::CKTLibrary {
    // First, so that it ends last: the library must be up while its objects are taken down.
    CKTPlatform m_Platform;

public:
    explicit CKTLibrary(CKTDOMParser* owner, CKTLibraryValidator validator)
        : m_pOwner(owner), m_Reader(validator.validator.release()) {
        // Set once; what depends on the file is set before each reading.
        m_Reader.setDoNamespaces(true);
        m_Reader.setIncludeIgnorableWhitespace(false);
        m_Reader.setCreateEntityReferenceNodes(false);
        // Otherwise the library loads the first import of a namespace and passes over the others.
        m_Reader.setHandleMultipleImports(true);
        m_Limits.setEntityExpansionLimit(kMaxEntityExpansions);
        m_Reader.setSecurityManager(&m_Limits);
        m_Handler.setVerboseError(true);
        m_Reader.setErrorHandler(&m_Handler);
        m_Reader.setXMLEntityResolver(&m_Guard);
    }

    bool LoadSchema(const std::string& fileName);
    bool ReadDocument(const std::string& fileName, bool validate, CKTXMLElement* root);
    std::unique_ptr<CKTXMLElement> ReadSchemaTree(const std::string& fileName);
    bool IsFlawless(const std::string& fileName);
    std::unique_ptr<CKTXMLElement> TakeDocument();

    [[nodiscard]] const CKTInputGuard& guard() const { return m_Guard; }
    CKTDOMErrorHandler& handler() { return m_Handler; }
    [[nodiscard]] const CKTHeldDiagnostics& held() const { return m_Held; }

    std::unique_ptr<CKTXMLElement> MakeRoot() {
        auto root = std::make_unique<CKTXMLElement>();
        root->setParser(m_pOwner);
        return root;
    }

    std::string parsedFile;  ///< what getXMLDocument is to return
    FILE_TYPE parsedType = XML_DOCUMENT;
    bool isParsed = false;
    std::unique_ptr<CKTXMLElement> document;     ///< built by the last parse
    std::unique_ptr<CKTDOMFormatTarget> target;  ///< the output machinery
    std::unique_ptr<CKTXMLFormatter> formatter;

private:
    std::unique_ptr<xercesc::InputSource> OpenSource(const std::string& fileName);
    bool Load(const xercesc::InputSource& source);
    bool Parse(const xercesc::InputSource& source);
    void SetUp(const Reading& reading, CKTXMLElement* root);

    CKTDOMParser* m_pOwner;
    CKTHeldDiagnostics m_Held;
    CKTDOMErrorHandler m_Handler;
    CKTInputGuard m_Guard{m_Handler};
    xercesc::SecurityManager m_Limits;
    // Behind what it is given above, which has to outlive it.
    CKTTreeReader m_Reader;
};

CKTDOMParser::CKTDOMParser() : CKTDOMParser(CKTLibraryValidator{}) {}

CKTDOMParser::CKTDOMParser(CKTLibraryValidator validator)
    : m_pLibrary(std::make_unique<CKTLibrary>(this, std::move(validator))) {}

CKTDOMParser::~CKTDOMParser() = default;

void CKTDOMParser::InitializePlatform() {
    CKTPlatform::Start();
}

bool CKTDOMParser::ParseFile(const std::string& fileName, FILE_TYPE type, bool validate) {
    CKTLibrary& library = *m_pLibrary;
    library.parsedFile = fileName;
    library.parsedType = type;
    library.document.reset();
    if (type == XML_SCHEMA) {
        AnnounceSchema(fileName);
        library.isParsed = library.LoadSchema(fileName);
        return library.isParsed;
    }
    library.document = library.MakeRoot();
    library.isParsed =
        library.ReadDocument(fileName, validate || type != XML_DOCUMENT, library.document.get());
    if (!library.isParsed) {
        library.document.reset();
    }
    return library.isParsed;
}

/// Loads a schema with everything that it reaches. The grammar is given back at once: what a tree
/// needs is checked then.
bool CKTDOMParser::CKTLibrary::LoadSchema(const std::string& fileName) {
    m_Guard.BeginLoad();
    // Compared with before, because the counters belong to the process: complaints about an earlier
    // file are not this one's.
    const int errors = m_nErrorCount;
    const int warnings = m_nWarningCount;
    const std::unique_ptr<xercesc::InputSource> source = OpenSource(fileName);
    return source != nullptr && Load(*source) && errors == m_nErrorCount &&
           warnings == m_nWarningCount;
}

/// Makes the input source of a file. One that cannot be read as a file is reported here in the
/// library's words: on its way to them the library loses memory, and a pipe would hold it up. So is
/// one that must not be fetched.
std::unique_ptr<xercesc::InputSource> CKTDOMParser::CKTLibrary::OpenSource(
    const std::string& fileName) {
    // The progress line tells the bytes of one reading.
    RestartBytesRead();
    std::u16string fault = WidenText(MessageText<XmlMessage::Unreadable>());
    try {
        auto source = MakeInputSource(nullptr, PathText(fileName).c_str());
        if (m_Guard.RefusesToFetch(*source)) {
            return nullptr;
        }
        if (!IsUnreadableFile(*source)) {
            return source;
        }
    } catch (const xercesc::XMLException& e) {
        fault = e.getMessage();
    }
    m_Handler.fatalError(xercesc::SAXParseException(fault.c_str(), nullptr, nullptr, 0, 0));
    return nullptr;
}

void CKTDOMParser::CKTLibrary::SetUp(const Reading& reading, CKTXMLElement* root) {
    m_Reader.setDoSchema(reading.validates);
    m_Reader.setValidationScheme(reading.validates ? xercesc::XercesDOMParser::Val_Always
                                                   : xercesc::XercesDOMParser::Val_Never);
    // That of a schema only describes schemas and is mostly not there.
    m_Reader.setLoadExternalDTD(!reading.isSchema);
    m_Reader.BuildBelow(root, m_pOwner, reading.isSchema);
}

bool CKTDOMParser::CKTLibrary::Load(const xercesc::InputSource& source) {
    m_Reader.setDoSchema(true);
    m_Reader.setValidationScheme(xercesc::XercesDOMParser::Val_Auto);
    try {
        // What is refused has been reported and so counted, which is what the caller looks at.
        if (m_Guard.AdmitSchema(source)) {
            m_Reader.loadGrammar(source, xercesc::Grammar::SchemaGrammarType, true);
            m_Reader.resetCachedGrammarPool();
        }
        return true;
    } catch (const xercesc::XMLException& e) {
        Report<XmlMessage::LoadException>(NarrowMessage(e.getMessage()));
    } catch (const xercesc::DOMException& e) {
        Report<XmlMessage::LoadTreeException>(e.code);
    } catch (const xercesc::OutOfMemoryException&) {
        Report<XmlMessage::LoadOutOfMemory>();
    }
    return false;
}

bool CKTDOMParser::CKTLibrary::ReadDocument(const std::string& fileName, bool validate,
                                            CKTXMLElement* root) {
    m_Guard.BeginLoad();
    const std::unique_ptr<xercesc::InputSource> source = OpenSource(fileName);
    SetUp({validate, false}, root);
    return source != nullptr && Parse(*source);
}

bool CKTDOMParser::CKTLibrary::Parse(const xercesc::InputSource& source) {
    try {
        return m_Reader.Read(source) && m_Reader.getErrorCount() < 1 &&
               !m_Guard.HasRefusedToFetch();
    } catch (const xercesc::XMLException& e) {
        Report<XmlMessage::ParseException>(NarrowMessage(e.getMessage()));
        // Counted here, since the line has no severity. The document counts as parsed all the same,
        // which is wanted.
        ++m_nErrorCount;
        return true;
    } catch (const xercesc::DOMException& e) {
        Report<XmlMessage::ParseTreeException>(e.code);
    } catch (...) {
        Report<XmlMessage::ParseFault>();
    }
    ++m_nErrorCount;
    return false;
}

std::unique_ptr<CKTXMLElement> CKTDOMParser::CKTLibrary::ReadSchemaTree(
    const std::string& fileName) {
    m_Guard.BeginLoad();
    const std::unique_ptr<xercesc::InputSource> source = OpenSource(fileName);
    std::unique_ptr<CKTXMLElement> root = MakeRoot();
    SetUp({false, true}, root.get());
    return source != nullptr && Parse(*source) ? std::move(root) : nullptr;
}

bool CKTDOMParser::CKTLibrary::IsFlawless(const std::string& fileName) {
    m_Held = {};
    // From the opening of the file on: that it is missing is a complaint like others.
    m_Handler.setHeld(&m_Held);
    m_Guard.BeginLoad();
    try {
        if (const auto source = OpenSource(fileName)) {
            SetUp({true, false}, nullptr);
            m_Reader.Read(*source);
        }
    } catch (...) {
        // Whatever it is, the passes that report meet it again.
        m_Held.isComplete = false;
    }
    m_Handler.setHeld(nullptr);
    return m_Held.isComplete && m_Held.errors == 0 && m_Held.warnings == 0;
}

std::unique_ptr<CKTXMLElement> CKTDOMParser::CKTLibrary::TakeDocument() {
    // The tree of the parse is given away once; whoever asks again waits for a reading.
    if (document != nullptr) {
        return std::move(document);
    }
    if (parsedType == XML_SCHEMA) {
        return ReadSchemaTree(parsedFile);
    }
    std::unique_ptr<CKTXMLElement> root = MakeRoot();
    return ReadDocument(parsedFile, false, root.get()) ? std::move(root) : nullptr;
}

std::unique_ptr<CKTXMLElement> CKTDOMParser::getXMLDocument() {
    CKTLibrary& library = *m_pLibrary;
    if (!library.isParsed) {
        return nullptr;
    }
    try {
        // First, because it borrows the target.
        library.formatter.reset();
        library.target = std::make_unique<CKTDOMFormatTarget>();
        library.formatter = std::make_unique<CKTXMLFormatter>(*library.target);
    } catch (const xercesc::XMLException& e) {
        Report<XmlMessage::NoTranscoder>(NarrowMessage(e.getMessage()));
        return nullptr;
    }
    return library.TakeDocument();
}

std::unique_ptr<CKTXMLElement> CKTDOMParser::ReadJudgedSchema(const std::string& fileName) {
    AnnounceSchema(fileName);
    return m_pLibrary->ReadSchemaTree(fileName);
}

bool CKTDOMParser::HasReached(const std::string& fileName) const {
    return m_pLibrary->guard().HasReached(fileName);
}

bool CKTDOMParser::CheckDocument(const std::string& fileName, bool validate) {
    return m_pLibrary->ReadDocument(fileName, validate, nullptr);
}

bool CKTDOMParser::IsFlawless(const std::string& fileName) {
    return m_pLibrary->IsFlawless(fileName);
}

bool CKTDOMParser::ReportHeldComplaints() {
    const CKTHeldDiagnostics& held = m_pLibrary->held();
    // A part of them is of no use: the caller has the document read again.
    if (held.isComplete) {
        CKTDOMErrorHandler::Report(held);
    }
    return held.isComplete;
}

int CKTDOMParser::getErrorCount() const {
    return m_nErrorCount;
}

int CKTDOMParser::getWarningCount() const {
    return m_nWarningCount;
}

void CKTDOMParser::setVerboseError(bool verbose) {
    m_pLibrary->handler().setVerboseError(verbose);
}

void CKTDOMParser::DisplayErrorSummary() {
    m_pLibrary->handler().DisplayErrorMsgSummary();
}

void CKTDOMParser::ResetErrors() {
    m_pLibrary->handler().resetErrors();
}

CKTXMLFormatter* CKTDOMParser::getXMLFormatter() const {
    return m_pLibrary->formatter.get();
}

CKTDOMFormatTarget* CKTDOMParser::getFormatTarget() const {
    return m_pLibrary->target.get();
}

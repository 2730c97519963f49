// The facade of the parser library. Everything of the library lives in one object behind it: the
// reader that turns events into trees, the guard that opens the files, the error handler. What was
// parsed last is remembered, so that its tree can be asked for afterwards.

#include "xml/KTDOMParser.h"

#include <iostream>

#include <xercesc/util/XMLException.hpp>

#include "support/Text.h"
#include "xml/Complaints.h"
#include "xml/ParserLibrary.h"

namespace {

void AnnounceSchema(const std::string& fileName) {
    std::cout << "\n";
    Report<XmlMessage::Checking>(fileName);
    std::cout.flush();
}

}  // namespace

CKTDOMParser::CKTDOMParser() : CKTDOMParser(CKTLibraryValidator{}) {}

CKTDOMParser::CKTDOMParser(CKTLibraryValidator validator)
    : m_pLibrary(std::make_unique<CKTLibrary>(this, std::move(validator))) {}

CKTDOMParser::~CKTDOMParser() = default;

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

void CKTDOMParser::DisplayErrorSummary() {
    m_pLibrary->handler().DisplayErrorMsgSummary();
}

CKTXMLFormatter* CKTDOMParser::getXMLFormatter() const {
    return m_pLibrary->formatter.get();
}

CKTDOMFormatTarget* CKTDOMParser::getFormatTarget() const {
    return m_pLibrary->target.get();
}

// The ways of reading. Each sets the reader up as a whole, so that nothing depends on what was read
// before. Exceptions of the library end here in one line each. One of them leaves a document that
// counts as parsed, and one word of these lines is misspelt; both are wanted.

#include "xml/ParserLibrary.h"

#include <iostream>
#include <new>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/validators/common/Grammar.hpp>

#include "support/Console.h"
#include "support/Progress.h"
#include "support/Text.h"
#include "xml/Complaints.h"
#include "xml/InputSources.h"
#include "xml/Paths.h"

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

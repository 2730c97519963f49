#ifndef DORVEX_XML_PARSERLIBRARY_H
#define DORVEX_XML_PARSERLIBRARY_H

#include <memory>
#include <string>

#include <xercesc/sax/InputSource.hpp>
#include <xercesc/util/SecurityManager.hpp>

#include "support/Limits.h"
#include "xml/InputGuard.h"
#include "xml/KTDOMErrorHandler.h"
#include "xml/KTDOMFormatTarget.h"
#include "xml/KTDOMParser.h"
#include "xml/KTXMLElement.h"
#include "xml/LibraryValidator.h"
#include "xml/Platform.h"
#include "xml/TreeReader.h"

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

    /// Loads a schema with everything that it reaches, and judges it. False after an error or a
    /// warning.
    bool LoadSchema(const std::string& fileName);

    /// Reads a document into a tree below `root`, or into nothing (null). False after an error.
    bool ReadDocument(const std::string& fileName, bool validate, CKTXMLElement* root);

    /// The tree of a schema file, of which only the form is checked; null after an error.
    std::unique_ptr<CKTXMLElement> ReadSchemaTree(const std::string& fileName);

    /// Reads a document through with validation and holds what there is to complain of.
    bool IsFlawless(const std::string& fileName);

    /// The tree of the file parsed last, read anew when it is no longer there.
    std::unique_ptr<CKTXMLElement> TakeDocument();

    [[nodiscard]] const CKTInputGuard& guard() const { return m_Guard; }
    CKTDOMErrorHandler& handler() { return m_Handler; }
    [[nodiscard]] const CKTHeldDiagnostics& held() const { return m_Held; }

    /// An element that stands for the document.
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
    /// How a file is read.
    struct Reading {
        bool validates = false;
        bool isSchema = false;
    };

    /// Makes the input source of a file; null after a complaint about one that cannot be read.
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

#endif

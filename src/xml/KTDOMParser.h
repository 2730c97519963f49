#ifndef DORVEX_XML_KTDOMPARSER_H
#define DORVEX_XML_KTDOMPARSER_H

#include <memory>
#include <string>

#include <xercesc/dom/DOMNode.hpp>
#include <xercesc/framework/XMLFormatter.hpp>
#include <xercesc/framework/XMLValidator.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/SecurityManager.hpp>

#include "xml/InputGuard.h"
#include "xml/KTDOMErrorHandler.h"
#include "xml/KTDOMFormatTarget.h"
#include "xml/KTXMLElement.h"

/// Parses one file by name with the parser library and turns it into the program's element tree.
/// Parsers may overlap: the library counts its initialisations. A parser must outlive every use of
/// getXMLFormatter and getFormatTarget on the trees that it built.
class CKTDOMParser {
public:
    enum FILE_TYPE {
        XML_DOCUMENT = 0,   ///< an ordinary document
        XML_SCHEMA = 1,     ///< loaded as a grammar first, then parsed
        XML_VALIDATED = 2,  ///< parsed with validation switched on
    };

    CKTDOMParser();
    /// Takes a validator of the caller's over and parses with it.
    explicit CKTDOMParser(std::unique_ptr<xercesc::XMLValidator> validator);
    virtual ~CKTDOMParser();
    CKTDOMParser(const CKTDOMParser&) = delete;
    CKTDOMParser& operator=(const CKTDOMParser&) = delete;

    /// Brings the parser library up; a failure is reported on standard error.
    static void InitializePlatform();

    /// Parses `fileName` and says whether a document is there to be used. Diagnostics go to
    /// standard error and into the process-wide counters; a schema is refused when any of these is
    /// not 0 after its grammar was loaded. `validate` has a meaning for XML_DOCUMENT only.
    bool ParseFile(const std::string& fileName, FILE_TYPE type, bool validate);

    /// Builds a new element tree of the parsed document, whose root stands for the document.
    /// Returns null when there was no successful parse, or, after a line on standard error, when
    /// the library fails.
    std::unique_ptr<CKTXMLElement> getXMLDocument();

    /// Gives the memory of the parsed document and of cached grammars back.
    void ReleaseDocument();

    /// The process-wide counters; 1 when there is no error handler, so that such a parser looks
    /// failed.
    [[nodiscard]] int getErrorCount() const;
    [[nodiscard]] int getWarningCount() const;

    /// Forwarded to the error handler; nothing without one.
    void setVerboseError(bool verbose);
    void DisplayErrorSummary();
    void ResetErrors();

    /// The output machinery made by the last getXMLDocument; null before it.
    [[nodiscard]] xercesc::XMLFormatter* getXMLFormatter() const { return m_pFormatter.get(); }
    [[nodiscard]] CKTDOMFormatTarget* getFormatTarget() const { return m_pFormatTarget.get(); }

private:
    void InitializeParser();
    std::unique_ptr<xercesc::InputSource> OpenSource(const std::string& fileName);
    bool LoadSchema(const xercesc::InputSource& source);
    bool Parse(const xercesc::InputSource& source);
    void getXMLElement(const xercesc::DOMNode& node, CKTXMLElement* parent);
    CKTXMLElement* copyElement(const xercesc::DOMNode& node, CKTXMLElement* parent);
    CKTXMLElement* copyNode(const xercesc::DOMNode& node, CKTXMLElement* parent);

    xercesc::SecurityManager m_Limits;
    std::unique_ptr<CKTDOMErrorHandler> m_pErrorHandler;
    std::unique_ptr<CKTInputGuard> m_pInputGuard;
    std::unique_ptr<xercesc::XercesDOMParser> m_pDOMParser;
    std::unique_ptr<CKTDOMFormatTarget> m_pFormatTarget;
    std::unique_ptr<xercesc::XMLFormatter> m_pFormatter;
    bool m_bParsed = false;
};

#endif

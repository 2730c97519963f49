#ifndef DORVEX_XML_KTDOMPARSER_H
#define DORVEX_XML_KTDOMPARSER_H

#include <memory>
#include <string>

#include "xml/KTXMLElement.h"

class CKTDOMFormatTarget;
class CKTXMLFormatter;
struct CKTLibraryValidator;

/// Reads files with the parser library, into the program's element trees or into nothing. A parser
/// may read any number of files, and parsers may overlap. It must outlive every use of
/// getXMLFormatter and getFormatTarget on the trees that it built.
class CKTDOMParser {
public:
    enum FILE_TYPE {
        XML_DOCUMENT = 0,   ///< an ordinary document
        XML_SCHEMA = 1,     ///< loaded as a grammar, with everything that it reaches
        XML_VALIDATED = 2,  ///< parsed with validation switched on
    };

    CKTDOMParser();
    /// Takes a validator of the caller's over and parses with it.
    explicit CKTDOMParser(CKTLibraryValidator validator);
    virtual ~CKTDOMParser();
    CKTDOMParser(const CKTDOMParser&) = delete;
    CKTDOMParser& operator=(const CKTDOMParser&) = delete;

    /// Brings the parser library up; a failure is reported on standard error.
    static void InitializePlatform();

    /// Parses `fileName` and says whether a document is there to be used. Diagnostics go to
    /// standard error and into the process-wide counters; a schema is refused when its load adds to
    /// any of these. `validate` has a meaning for XML_DOCUMENT only.
    bool ParseFile(const std::string& fileName, FILE_TYPE type, bool validate);

    /// Returns the element tree of the document parsed last, whose root stands for the document.
    /// Null when there was no successful parse, or, after a line on standard error, when the
    /// library fails. The tree of a schema, and a second tree of the same document, is read from
    /// the file now.
    std::unique_ptr<CKTXMLElement> getXMLDocument();

    /// Announces a schema file as ParseFile does and reads its tree, but does not load it: a load
    /// that reached it has judged it. Null after a diagnostic when it cannot be read any more.
    std::unique_ptr<CKTXMLElement> ReadJudgedSchema(const std::string& fileName);

    /// Says whether a schema load of this parser was given the file `fileName`, whatever name led
    /// to it.
    [[nodiscard]] bool HasReached(const std::string& fileName) const;

    /// Reads a document through as ParseFile does, and builds nothing of it.
    bool CheckDocument(const std::string& fileName, bool validate);

    /// Reads a document through with validation and says whether there is nothing to complain of.
    /// Nothing is printed or counted: complaints are held.
    bool IsFlawless(const std::string& fileName);

    /// Prints and counts the complaints that IsFlawless held. False, with nothing printed, when
    /// there were too many to hold.
    bool ReportHeldComplaints();

    /// The process-wide counters.
    [[nodiscard]] int getErrorCount() const;
    [[nodiscard]] int getWarningCount() const;

    /// Forwarded to the error handler.
    void setVerboseError(bool verbose);
    void DisplayErrorSummary();
    void ResetErrors();

    /// The output machinery made by the last getXMLDocument; null before it.
    [[nodiscard]] CKTXMLFormatter* getXMLFormatter() const;
    [[nodiscard]] CKTDOMFormatTarget* getFormatTarget() const;

private:
    class CKTLibrary;
    std::unique_ptr<CKTLibrary> m_pLibrary;
};

#endif

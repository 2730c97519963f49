#ifndef DORVEX_SCHEMA_KTXMLNAMESPACESCHEMAPAIR_H
#define DORVEX_SCHEMA_KTXMLNAMESPACESCHEMAPAIR_H

#include <string>
#include <string_view>
#include <vector>

class CKTXMLSchemaDoc;

/// A namespace bound to the schema document that was imported for it. The document is borrowed.
class CKTXMLNamespaceSchemaPair {
public:
    CKTXMLNamespaceSchemaPair() = default;
    CKTXMLNamespaceSchemaPair(std::string uri, CKTXMLSchemaDoc* doc);
    virtual ~CKTXMLNamespaceSchemaPair() = default;

    void setNS(std::string uri) { m_sNamespaceURI = std::move(uri); }
    void setSchemaDoc(CKTXMLSchemaDoc* doc) { m_pSchemaDoc = doc; }
    [[nodiscard]] std::string getNamespaceURI() const { return m_sNamespaceURI; }
    [[nodiscard]] CKTXMLSchemaDoc* getSchemaDoc() const { return m_pSchemaDoc; }

    /// The document of the first pair, in list order, with exactly this URI; null when there is
    /// none.
    static CKTXMLSchemaDoc* findDocumentByNamespace(
        std::string_view uri, const std::vector<CKTXMLNamespaceSchemaPair*>& pairs);

private:
    std::string m_sNamespaceURI;
    CKTXMLSchemaDoc* m_pSchemaDoc = nullptr;
};

#endif

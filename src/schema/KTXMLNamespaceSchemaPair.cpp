#include "schema/KTXMLNamespaceSchemaPair.h"

#include <utility>

CKTXMLNamespaceSchemaPair::CKTXMLNamespaceSchemaPair(std::string uri, CKTXMLSchemaDoc* doc)
    : m_sNamespaceURI(std::move(uri)), m_pSchemaDoc(doc) {}

CKTXMLSchemaDoc* CKTXMLNamespaceSchemaPair::findDocumentByNamespace(
    std::string_view uri, const std::vector<CKTXMLNamespaceSchemaPair*>& pairs) {
    for (const CKTXMLNamespaceSchemaPair* pair : pairs) {
        if (pair->m_sNamespaceURI == uri) {
            return pair->m_pSchemaDoc;
        }
    }
    return nullptr;
}

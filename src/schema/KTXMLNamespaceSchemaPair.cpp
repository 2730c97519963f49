// A namespace and the document that was imported for it.

#include "schema/KTXMLNamespaceSchemaPair.h"

#include <utility>

CKTXMLNamespaceSchemaPair::CKTXMLNamespaceSchemaPair(std::string uri, CKTXMLSchemaDoc* doc)
    : m_sNamespaceURI(std::move(uri)), m_pSchemaDoc(doc) {}

#include "schema/SchemaStore.h"

#include <filesystem>
#include <string_view>
#include <system_error>

#include "schema/KTXMLSchemaDoc.h"

namespace {

/// Two names are the same file when this is the same; a location that is no file stands for itself.
std::string CanonicalName(const std::string& fileName) {
    std::string_view plain = fileName;
    for (const std::string_view start : {"file://localhost/", "file:///"}) {
        if (plain.starts_with(start)) {
            plain.remove_prefix(start.size() - 1);
        }
    }
    std::error_code error;
    const std::filesystem::path path = std::filesystem::canonical(plain, error);
    return error ? fileName : path.string();
}

template <typename Owned>
Owned* KeepIn(std::vector<std::unique_ptr<Owned>>& list, std::unique_ptr<Owned> entry) {
    list.push_back(std::move(entry));
    return list.back().get();
}

}  // namespace

CKTSchemaStore::CKTSchemaStore() = default;
CKTSchemaStore::~CKTSchemaStore() = default;

CKTXMLElement* CKTSchemaStore::Load(const std::string& fileName) {
    auto parser = std::make_unique<CKTDOMParser>();
    if (!parser->ParseFile(fileName, CKTDOMParser::XML_SCHEMA, true)) {
        return nullptr;
    }
    std::unique_ptr<CKTXMLElement> root = parser->getXMLDocument();
    if (root == nullptr) {
        return nullptr;
    }
    parser->ReleaseDocument();
    m_Parsers.push_back(std::move(parser));
    return Keep(std::move(root));
}

bool CKTSchemaStore::BeginInclude(const std::string& fileName) {
    const std::string path = CanonicalName(fileName);
    return !m_Loading.contains(path) && m_Included.insert(path).second;
}

void CKTSchemaStore::RegisterImport(const std::string& fileName, CKTXMLSchemaDoc* doc) {
    m_Imported[CanonicalName(fileName)] = doc;
}

bool CKTSchemaStore::FindImport(const std::string& fileName, CKTXMLSchemaDoc*& doc) const {
    const auto found = m_Imported.find(CanonicalName(fileName));
    doc = found == m_Imported.end() ? nullptr : found->second;
    return found != m_Imported.end();
}

CKTSchemaStore::CKTLoadGuard::CKTLoadGuard(CKTSchemaStore& store, const std::string& fileName)
    : m_Store(store),
      m_sPath(CanonicalName(fileName)),
      m_bAdded(store.m_Loading.insert(m_sPath).second) {}

CKTSchemaStore::CKTLoadGuard::~CKTLoadGuard() {
    if (m_bAdded) {
        m_Store.m_Loading.erase(m_sPath);
    }
}

CKTXMLSchemaDoc* CKTSchemaStore::Keep(std::unique_ptr<CKTXMLSchemaDoc> doc) {
    return KeepIn(m_Documents, std::move(doc));
}

CKTXMLNamespaceSchemaPair* CKTSchemaStore::Keep(std::unique_ptr<CKTXMLNamespaceSchemaPair> pair) {
    return KeepIn(m_Pairs, std::move(pair));
}

CKTXMLElement* CKTSchemaStore::Keep(std::unique_ptr<CKTXMLElement> element) {
    return KeepIn(m_Elements, std::move(element));
}

// What was loaded for one schema, and from where. The parser library has resolved and checked the
// whole set when it loaded the main schema; here each file is read once more, for its tree. A file
// goes by its canonical path, so that links and ways around lead to one entry. Sources of files are
// exchangeable: tests hold whole sets in memory.

#include "schema/SchemaSet.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "schema/KTXMLSchemaDoc.h"
#include "xml/Locations.h"
#include "xml/Paths.h"

namespace {

template <typename Owned>
Owned* KeepIn(std::vector<std::unique_ptr<Owned>>& list, std::unique_ptr<Owned> entry) {
    list.push_back(std::move(entry));
    return list.back().get();
}

}  // namespace

bool CKTLoadedSchemaFiles::IsJudged(const std::string& fileName) const {
    return m_Parser.HasReached(fileName) ||
           std::any_of(m_FurtherParsers.begin(), m_FurtherParsers.end(),
                       [&](const auto& parser) { return parser->HasReached(fileName); });
}

std::unique_ptr<CKTXMLElement> CKTLoadedSchemaFiles::Read(const std::string& fileName) {
    // No message may come twice, so what the load of the main schema has seen is not judged again.
    if (IsJudged(fileName)) {
        return m_Parser.ReadJudgedSchema(fileName);
    }
    auto parser = std::make_unique<CKTDOMParser>();
    if (!parser->ParseFile(fileName, CKTDOMParser::XML_SCHEMA, true)) {
        return nullptr;
    }
    std::unique_ptr<CKTXMLElement> root = parser->getXMLDocument();
    // Kept because elements know their parser.
    m_FurtherParsers.push_back(std::move(parser));
    return root;
}

bool CKTLoadedSchemaFiles::Exists(const std::string& fileName) const {
    std::error_code error;
    return std::filesystem::exists(fileName, error);
}

std::string CKTLoadedSchemaFiles::Identity(const std::string& fileName) const {
    return FileIdentity(OpenedLocation(fileName));
}

CKTSchemaSet::CKTSchemaSet(CKTSchemaFiles& files) : m_Files(files) {}
CKTSchemaSet::~CKTSchemaSet() = default;

CKTXMLElement* CKTSchemaSet::Load(const std::string& fileName) {
    std::unique_ptr<CKTXMLElement> root = m_Files.Read(fileName);
    return root == nullptr ? nullptr : Keep(std::move(root));
}

bool CKTSchemaSet::BeginInclude(const std::string& fileName, const std::string& uri) {
    const std::string identity = m_Files.Identity(fileName);
    if (m_Loading.contains(identity)) {
        return false;
    }
    const auto [inclusion, isFirst] = m_Included.try_emplace(identity);
    // Only a file without a namespace of its own can count for several.
    return (isFirst || inclusion->second.isAdopted) &&
           inclusion->second.namespaces.insert(uri).second;
}

void CKTSchemaSet::NoteAdoption(const std::string& fileName) {
    m_Included[m_Files.Identity(fileName)].isAdopted = true;
}

void CKTSchemaSet::RegisterImport(const std::string& fileName, CKTXMLSchemaDoc* doc) {
    m_Imported[m_Files.Identity(fileName)] = doc;
}

bool CKTSchemaSet::FindImport(const std::string& fileName, CKTXMLSchemaDoc*& doc) const {
    const auto found = m_Imported.find(m_Files.Identity(fileName));
    doc = found == m_Imported.end() ? nullptr : found->second;
    return found != m_Imported.end();
}

CKTSchemaSet::CKTLoadGuard::CKTLoadGuard(CKTSchemaSet& set, const std::string& fileName)
    : m_Set(set),
      m_sIdentity(set.m_Files.Identity(fileName)),
      m_bAdded(set.m_Loading.insert(m_sIdentity).second) {}

CKTSchemaSet::CKTLoadGuard::~CKTLoadGuard() {
    // The outer one of two guards for a file takes the mark back.
    if (m_bAdded) {
        m_Set.m_Loading.erase(m_sIdentity);
    }
}

CKTXMLSchemaDoc* CKTSchemaSet::Keep(std::unique_ptr<CKTXMLSchemaDoc> doc) {
    return KeepIn(m_Documents, std::move(doc));
}

CKTXMLNamespaceSchemaPair* CKTSchemaSet::Keep(std::unique_ptr<CKTXMLNamespaceSchemaPair> pair) {
    return KeepIn(m_Pairs, std::move(pair));
}

CKTXMLElement* CKTSchemaSet::Keep(std::unique_ptr<CKTXMLElement> element) {
    return KeepIn(m_Elements, std::move(element));
}

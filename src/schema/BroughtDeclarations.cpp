// Declarations on their way from included files into the main schema. They wait here until the
// whole set is read, since a redefinition may still replace one that an inner file brought. Both
// kinds of list keep their order and find a name in one step; the places that were emptied are
// passed over when all is taken.

#include "schema/BroughtDeclarations.h"

#include <algorithm>
#include <utility>

void CKTCarriedDeclarations::Add(std::unique_ptr<CKTXMLElement> declaration) {
    const std::string* name = AttributeValue(declaration.get(), "name");
    if (name != nullptr && !name->empty()) {
        m_Places[*name].push_back(m_Declarations.size());
    }
    m_Declarations.push_back(std::move(declaration));
}

std::unique_ptr<CKTXMLElement> CKTCarriedDeclarations::TakeFirst(const std::string& name) {
    const auto found = m_Places.find(name);
    if (found == m_Places.end() || found->second.empty()) {
        return nullptr;
    }
    const std::size_t place = found->second.front();
    found->second.pop_front();
    return std::move(m_Declarations[place]);
}

std::vector<std::unique_ptr<CKTXMLElement>> CKTCarriedDeclarations::TakeAll() {
    std::erase(m_Declarations, nullptr);
    m_Places.clear();
    return std::exchange(m_Declarations, {});
}

std::string CKTBroughtDeclarations::Key(SchemaKind kind, std::string_view name) {
    return std::to_string(static_cast<int>(kind)) + " " + std::string(name);
}

void CKTBroughtDeclarations::Append(std::vector<std::unique_ptr<CKTXMLElement>> declarations,
                                    CKTXMLSchemaDoc* owner) {
    for (std::unique_ptr<CKTXMLElement>& declaration : declarations) {
        if (const std::string* name = AttributeValue(declaration.get(), "name")) {
            m_Places[Key(SchemaKindOf(declaration->getName()), *name)].push_back(m_Entries.size());
        }
        m_Entries.push_back({std::move(declaration), owner});
    }
}

std::optional<std::size_t> CKTBroughtDeclarations::Find(SchemaKind kind, const std::string& name,
                                                        std::size_t from) const {
    const auto found = m_Places.find(Key(kind, name));
    if (found == m_Places.end()) {
        return std::nullopt;
    }
    // Places of a key are in rising order, because entries are only appended.
    const auto place = std::lower_bound(found->second.begin(), found->second.end(), from);
    return place == found->second.end() ? std::nullopt : std::optional(*place);
}

std::vector<CKTBroughtDeclarations::Entry> CKTBroughtDeclarations::TakeAll() {
    m_Places.clear();
    return std::exchange(m_Entries, {});
}

#include "schema/KTXMLSchemaDoc.h"

#include <array>
#include <filesystem>
#include <optional>
#include <utility>

#include "schema/SchemaStore.h"
#include "xml/Paths.h"

/// The declarations that move from included schemas into the main document, in order, with an index
/// by name. A declaration that a redefinition replaced leaves an empty place.
struct CKTXMLSchemaDoc::Carried {
    void Add(std::unique_ptr<CKTXMLElement> declaration) {
        std::string name;
        if (findAttrByName(declaration.get(), "name", &name) && !name.empty()) {
            places[name].push_back(declarations.size());
        }
        declarations.push_back(std::move(declaration));
    }

    std::unique_ptr<CKTXMLElement> TakeFirst(const std::string& name) {
        const auto found = places.find(name);
        if (found == places.end() || found->second.empty()) {
            return nullptr;
        }
        const std::size_t place = found->second.front();
        found->second.pop_front();
        return std::move(declarations[place]);
    }

    std::vector<std::unique_ptr<CKTXMLElement>> declarations;
    std::unordered_map<std::string, std::deque<std::size_t>> places;
};

namespace {

/// Included global attributes are left behind on purpose.
bool IsCarriedKind(const CKTXMLElement& e) {
    switch (CKTXMLSchemaDoc::getElementType(&e)) {
        case SchemaKind::Element:
        case SchemaKind::AttributeGroup:
        case SchemaKind::SimpleType:
        case SchemaKind::Group:
        case SchemaKind::ComplexType:
            return true;
        default:
            return false;
    }
}

/// Gives an included schema without a namespace that of the one that includes it. Within the main
/// schema it needs none, because the main namespace is where every look-up ends.
void AdoptNamespace(CKTXMLElement* root, const CKTXMLElement& including) {
    CKTXMLElement* schema = root->getFirstChildElem();
    const CKTXMLAttribute* uri = including.getAttribute("targetNamespace");
    if (schema == nullptr || uri == nullptr || schema->getAttribute("targetNamespace") != nullptr) {
        return;
    }
    for (const char* name : {"targetNamespace", "xmlns"}) {
        if (schema->getAttribute(name) == nullptr) {
            auto attribute = std::make_unique<CKTXMLAttribute>(name, uri->getValue());
            attribute->setParent(schema);
            schema->addAttribute(std::move(attribute));
        }
    }
}

template <typename Entry>
void Append(std::vector<Entry>& list, const std::vector<Entry>& more) {
    list.insert(list.end(), more.begin(), more.end());
}

}  // namespace

CKTXMLSchemaDoc::CKTXMLSchemaDoc(CKTXMLElement* root, CKTXMLSchemaDoc* target, std::string location,
                                 CKTSchemaStore& store)
    : m_Store(store), m_sSchemaLocation(std::move(location)), m_sBaseFile(m_sSchemaLocation) {
    if (root == nullptr) {
        return;
    }
    std::optional<CKTSchemaStore::CKTLoadGuard> loading;
    if (target == nullptr) {
        m_Store.RegisterImport(m_sBaseFile, this);
        loading.emplace(m_Store, m_sBaseFile);
    }
    PreProcessSchema(root, target == nullptr ? this : target);
}

CKTXMLSchemaDoc* CKTXMLSchemaDoc::PreProcessSchema(CKTXMLElement* root, CKTXMLSchemaDoc* target) {
    if (root == nullptr) {
        return target;
    }
    ElementList parts;
    root->findElement({}, compareElemForMultipartSchema, parts, true);
    if (parts.empty()) {
        return target;
    }
    Carried carried;
    for (CKTXMLElement* part : parts) {
        switch (getElementType(part)) {
            case SchemaKind::Schema:
                if (m_pSchemaElement == nullptr) {
                    m_pSchemaElement = part;
                    m_SchemaElementList.push_back(part);
                }
                break;
            case SchemaKind::Import:
                ProcessImport(part, target);
                break;
            case SchemaKind::Include:
                ProcessInclude(part, target, carried);
                break;
            default:
                ProcessInclude(part, target, carried);
                ProcessRedefine(part, target, carried);
                break;
        }
    }
    if (target->m_pSchemaElement != nullptr) {
        for (std::unique_ptr<CKTXMLElement>& declaration : carried.declarations) {
            if (declaration != nullptr) {
                target->m_pSchemaElement->addChildElement(std::move(declaration));
            }
        }
    }
    InitializeElementLists();
    return target;
}

void CKTXMLSchemaDoc::ProcessImport(const CKTXMLElement* import, CKTXMLSchemaDoc* target) {
    std::string location;
    std::string uri;
    if (!findAttrByName(import, "schemaLocation", &location) ||
        !findAttrByName(import, "namespace", &uri)) {
        return;
    }
    CKTXMLSchemaDoc* doc = LoadImport(ImportPath(location, target), target);
    if (doc == nullptr) {
        return;
    }
    target->m_NamespaceSchemaPairs.push_back(
        m_Store.Keep(std::make_unique<CKTXMLNamespaceSchemaPair>(uri, doc)));
}

/// A location counts from the working directory; one that is written outside the main file and
/// leads nowhere from there counts from the directory of the file that it is written in.
std::string CKTXMLSchemaDoc::ImportPath(const std::string& location,
                                        const CKTXMLSchemaDoc* target) const {
    const bool inMainFile = this == target;
    if (inMainFile || location.find("://") != std::string::npos || !IsRelativePath(location)) {
        return location;
    }
    std::error_code error;
    return std::filesystem::exists(location, error) ? location : WeavePaths(m_sBaseFile, location);
}

CKTXMLSchemaDoc* CKTXMLSchemaDoc::LoadImport(const std::string& fileName, CKTXMLSchemaDoc* target) {
    CKTXMLSchemaDoc* known = nullptr;
    if (m_Store.FindImport(fileName, known)) {
        return known;
    }
    m_Store.RegisterImport(fileName, nullptr);
    CKTXMLElement* root = m_Store.Load(fileName);
    if (root == nullptr) {
        return nullptr;
    }
    CKTXMLSchemaDoc* doc = m_Store.Keep(std::make_unique<CKTXMLSchemaDoc>(m_Store));
    doc->m_sBaseFile = FullPath(fileName);
    m_Store.RegisterImport(fileName, doc);
    const CKTSchemaStore::CKTLoadGuard loading(m_Store, fileName);
    doc->PreProcessSchema(root, target);
    return doc;
}

void CKTXMLSchemaDoc::ProcessInclude(const CKTXMLElement* include, CKTXMLSchemaDoc* target,
                                     Carried& carried) {
    std::string location;
    if (!findAttrByName(include, "schemaLocation", &location)) {
        return;
    }
    std::string fileName = location;
    std::string base = m_sBaseFile;
    if (location.find("://") == std::string::npos) {
        if (IsRelativePath(location)) {
            fileName = WeavePaths(m_sBaseFile, location);
        }
        base = fileName;
    }
    if (!m_Store.BeginInclude(fileName)) {
        return;
    }
    CKTXMLElement* root = m_Store.Load(fileName);
    if (root == nullptr) {
        return;
    }
    if (this != target && m_pSchemaElement != nullptr) {
        AdoptNamespace(root, *m_pSchemaElement);
    }
    const CKTXMLSchemaDoc included(root, target, base, m_Store);
    included.MergeInto(target);
    if (included.m_pSchemaElement == nullptr) {
        return;
    }
    for (auto& declaration : included.m_pSchemaElement->takeChildElements(IsCarriedKind)) {
        carried.Add(std::move(declaration));
    }
}

void CKTXMLSchemaDoc::ProcessRedefine(CKTXMLElement* redefine, CKTXMLSchemaDoc* target,
                                      Carried& carried) {
    auto redefinitions = redefine->takeChildElements([&](const CKTXMLElement& child) {
        std::string name;
        if (!findAttrByName(&child, "name", &name) || name.empty()) {
            return false;
        }
        std::unique_ptr<CKTXMLElement> replaced = carried.TakeFirst(name);
        if (replaced == nullptr) {
            return false;
        }
        target->m_RedefinedList.push_back(replaced.get());
        target->m_Replaced[&child] = m_Store.Keep(std::move(replaced));
        return true;
    });
    for (auto& redefinition : redefinitions) {
        carried.Add(std::move(redefinition));
    }
}

void CKTXMLSchemaDoc::MergeInto(CKTXMLSchemaDoc* target) const {
    Append(target->m_SchemaElementList, m_SchemaElementList);
    Append(target->m_NamespaceDeclList, m_NamespaceDeclList);
}

bool CKTXMLSchemaDoc::InitializeElementLists() {
    if (m_pSchemaElement == nullptr || m_pSchemaElement->getFirstChildElem() == nullptr) {
        return false;
    }
    for (CKTXMLAttribute* a = m_pSchemaElement->getFirstAttr(); a != nullptr;
         a = a->getNextSibling()) {
        const std::string_view local = CKTXMLNode::getNonQualifiedName(a->getName());
        if (local == "targetNamespace") {
            m_sTargetNamespace = a->getValue();
        } else if (local == "xmlns" || CKTXMLNode::getNameQualifier(a->getName()) == "xmlns") {
            m_NamespaceDeclList.push_back(a);
        }
    }
    CKTXMLElement* first = m_pSchemaElement->getFirstChildElem();
    const std::array<std::pair<const char*, ElementList*>, 6> lists = {
        {{"complexType", &m_ComplexTypeList},
         {"simpleType", &m_SimpleTypeList},
         {"group", &m_GroupList},
         {"attributeGroup", &m_AttributeGroupList},
         {"element", &m_ElementList},
         {"attribute", &m_AttributeList}}};
    for (const auto& [name, list] : lists) {
        first->findElement(name, compareElemByName, *list, false);
    }
    first->findElement("substitutionGroup", compareElemByAttrType, m_SubstitutionGroupList, false);
    for (CKTXMLElement* element : m_ElementList) {
        element->setNamespace(m_sTargetNamespace);
    }
    return true;
}

const CKTXMLSchemaDoc::ElementList& CKTXMLSchemaDoc::getList(DeclarationList list) const {
    switch (list) {
        case COMPLEX_TYPES:
            return m_ComplexTypeList;
        case SIMPLE_TYPES:
            return m_SimpleTypeList;
        case ELEMENTS:
            return m_ElementList;
        case ATTRIBUTES:
            return m_AttributeList;
        case GROUPS:
            return m_GroupList;
        case ATTRIBUTE_GROUPS:
            return m_AttributeGroupList;
        case SUBSTITUTION_MEMBERS:
            return m_SubstitutionGroupList;
        default:
            return m_RedefinedList;
    }
}

CKTXMLElement* CKTXMLSchemaDoc::getReplaced(const CKTXMLElement* redefinition) const {
    const auto found = m_Replaced.find(redefinition);
    return found == m_Replaced.end() ? nullptr : found->second;
}

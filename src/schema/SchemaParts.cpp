// The files that a schema document names. Included files are read depth first, so that what an
// inner file declares comes before what the outer one does; a redefined file is an included one
// whose declarations are then replaced. A file that cannot be used is left out after the parser's
// messages, and the rest goes on. Recursion is as deep as files include each other, and each is
// loaded once in its role.

#include <memory>
#include <optional>
#include <utility>

#include "schema/KTXMLSchemaDoc.h"
#include "schema/SchemaSet.h"
#include "xml/Locations.h"
#include "xml/Paths.h"

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

/// Reads where `part` is to be found: a location elsewhere as written, any other as a file name.
bool FindLocation(const CKTXMLElement* part, std::string& location) {
    const std::string* written = AttributeValue(part, "schemaLocation");
    if (written == nullptr) {
        return false;
    }
    location = *written;
    // In a file name an escaped blank is a blank.
    if (location.find("://") == std::string::npos) {
        location = WithBlanks(location);
    }
    return true;
}

/// Gives a schema without a namespace of its own that of the one that includes it. Says whether it
/// has none of its own.
bool AdoptNamespace(CKTXMLElement* root, const std::string& uri) {
    CKTXMLElement* schema = root->getFirstChildElem();
    if (schema == nullptr || AttributeValue(schema, "targetNamespace") != nullptr) {
        return false;
    }
    // With a default namespace its unprefixed names lead into the namespace that it was given.
    for (const char* name : {"targetNamespace", "xmlns"}) {
        if (!uri.empty() && AttributeValue(schema, name) == nullptr) {
            auto attribute = std::make_unique<CKTXMLAttribute>(name, uri);
            attribute->setParent(schema);
            schema->addAttribute(std::move(attribute));
        }
    }
    return true;
}

template <typename Entry>
void Append(std::vector<Entry>& list, const std::vector<Entry>& more) {
    list.insert(list.end(), more.begin(), more.end());
}

}  // namespace

CKTXMLSchemaDoc* CKTXMLSchemaDoc::PreProcessSchema(CKTXMLElement* root, CKTXMLSchemaDoc* target) {
    if (root == nullptr) {
        return target;
    }
    ElementList parts;
    // In document order, the schema element before what it names.
    root->findElement({}, compareElemForMultipartSchema, parts, true);
    if (parts.empty()) {
        return target;
    }
    CKTCarriedDeclarations carried;
    for (CKTXMLElement* part : parts) {
        ProcessPart(part, target, carried);
    }
    // Behind what the inner files have brought meanwhile.
    target->m_Brought.Append(carried.TakeAll(), m_Place.owner);
    if (target == this) {
        TakeBroughtDeclarations();
    }
    InitializeElementLists();
    return target;
}

void CKTXMLSchemaDoc::ProcessPart(CKTXMLElement* part, CKTXMLSchemaDoc* target,
                                  CKTCarriedDeclarations& carried) {
    const std::size_t before = target->m_Brought.size();
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
            ProcessRedefine(part, target, carried, before);
            break;
    }
}

/// Ends the loading of the main document: what the included files of the set have brought joins its
/// tree.
void CKTXMLSchemaDoc::TakeBroughtDeclarations() {
    for (CKTBroughtDeclarations::Entry& entry : m_Brought.TakeAll()) {
        if (entry.owner != this) {
            entry.owner->m_IncludedList.push_back(entry.declaration.get());
            m_ForeignDeclarations.insert(entry.declaration.get());
        }
        if (m_pSchemaElement != nullptr) {
            m_pSchemaElement->addChildElement(std::move(entry.declaration));
        } else {
            m_Set.Keep(std::move(entry.declaration));
        }
    }
}

void CKTXMLSchemaDoc::ProcessImport(const CKTXMLElement* import, CKTXMLSchemaDoc* target) {
    std::string location;
    const std::string* uri = AttributeValue(import, "namespace");
    // Without a namespace no prefix could lead there.
    if (!FindLocation(import, location) || uri == nullptr) {
        return;
    }
    CKTXMLSchemaDoc* doc = LoadImport(ImportPath(location, target), target);
    if (doc == nullptr) {
        return;
    }
    target->m_NamespaceSchemaPairs.push_back(
        m_Set.Keep(std::make_unique<CKTXMLNamespaceSchemaPair>(*uri, doc)));
}

/// A location counts from the working directory; one that leads nowhere from there counts from the
/// place of the document that it is written in, unless that is the main file.
std::string CKTXMLSchemaDoc::ImportPath(const std::string& location,
                                        const CKTXMLSchemaDoc* target) const {
    const bool isElsewhere = IsLocation(m_Place.ownFile);
    const bool inMainFile = this == target && !isElsewhere;
    if (inMainFile || IsLocation(location) || (!IsRelativePath(location) && !isElsewhere) ||
        m_Set.Exists(location)) {
        return location;
    }
    return OpenedLocation(location, m_Place.ownFile);
}

/// A location counts from the place of the document that it is written in. One that is included by
/// a URL has the place of the document that includes it, and its own for what is not there.
std::string CKTXMLSchemaDoc::IncludePath(const std::string& location) const {
    if (IsLocation(location)) {
        return location;
    }
    std::string path = IsRelativePath(location) ? WeavePaths(m_Place.baseFile, location) : location;
    const bool hasOnePlace = m_Place.ownFile == m_Place.baseFile && !IsLocation(m_Place.ownFile);
    return hasOnePlace || m_Set.Exists(path) ? path : OpenedLocation(location, m_Place.ownFile);
}

CKTXMLSchemaDoc* CKTXMLSchemaDoc::LoadImport(const std::string& fileName, CKTXMLSchemaDoc* target) {
    CKTXMLSchemaDoc* known = nullptr;
    if (m_Set.FindImport(fileName, known)) {
        return known;
    }
    // Marks it as tried before it is read: a file that cannot be used is reported once.
    m_Set.RegisterImport(fileName, nullptr);
    CKTXMLElement* root = m_Set.Load(fileName);
    if (root == nullptr) {
        return nullptr;
    }
    CKTXMLSchemaDoc* doc = m_Set.Keep(std::make_unique<CKTXMLSchemaDoc>(m_Set));
    doc->m_Place.baseFile = OpenedLocation(fileName);
    doc->m_Place.ownFile = doc->m_Place.baseFile;
    m_Set.RegisterImport(fileName, doc);
    // An include that leads back to the file while it is being loaded adds nothing.
    const CKTSchemaSet::CKTLoadGuard loading(m_Set, fileName);
    doc->PreProcessSchema(root, target);
    return doc;
}

void CKTXMLSchemaDoc::ProcessInclude(const CKTXMLElement* include, CKTXMLSchemaDoc* target,
                                     CKTCarriedDeclarations& carried) {
    std::string location;
    if (!FindLocation(include, location)) {
        return;
    }
    const std::string fileName = IncludePath(location);
    const std::string uri = OwnNamespace();
    if (!m_Set.BeginInclude(fileName, uri)) {
        return;
    }
    CKTXMLElement* root = m_Set.Load(fileName);
    if (root == nullptr) {
        return;
    }
    if (AdoptNamespace(root, uri)) {
        m_Set.NoteAdoption(fileName);
    }
    // Lives only as long as its declarations are on their way into the main document.
    CKTXMLSchemaDoc included(m_Set, m_Place.owner,
                             IsLocation(location) ? m_Place.baseFile : fileName);
    if (IsLocation(location)) {
        included.m_Place.ownFile = OpenedLocation(location);
    }
    included.PreProcessSchema(root, target);
    included.MergeInto(target);
    if (included.m_pSchemaElement == nullptr) {
        return;
    }
    for (auto& declaration : included.m_pSchemaElement->takeChildElements(IsCarriedKind)) {
        carried.Add(std::move(declaration));
    }
}

/// The namespace that this document's schema element writes or has adopted.
std::string CKTXMLSchemaDoc::OwnNamespace() const {
    const std::string* uri =
        m_pSchemaElement == nullptr ? nullptr : AttributeValue(m_pSchemaElement, "targetNamespace");
    return uri == nullptr ? std::string() : *uri;
}

/// Puts each redefinition in the place of what it redefines: a declaration of the redefined file,
/// or one that its own includes have brought since the place `from`.
void CKTXMLSchemaDoc::ProcessRedefine(CKTXMLElement* redefine, CKTXMLSchemaDoc* target,
                                      CKTCarriedDeclarations& carried, std::size_t from) {
    std::vector<std::optional<std::size_t>> places;
    auto redefinitions = redefine->takeChildElements([&](const CKTXMLElement& child) {
        const std::string* name = AttributeValue(&child, "name");
        if (name == nullptr || name->empty()) {
            return false;
        }
        // What the redefined file declares itself comes first. It is taken by name alone, since the
        // load has judged that kinds agree.
        std::unique_ptr<CKTXMLElement> replaced = carried.TakeFirst(*name);
        std::optional<std::size_t> place;
        if (replaced == nullptr) {
            place = target->m_Brought.Find(getElementType(&child), *name, from);
            // Nothing to replace: the redefinition stays where it is written and is found by
            // nobody.
            if (!place || target->m_Brought.At(*place).declaration == nullptr) {
                return false;
            }
            replaced = std::move(target->m_Brought.At(*place).declaration);
        }
        places.push_back(place);
        target->ListOf(REDEFINED).push_back(replaced.get());
        target->m_Replaced[&child] = m_Set.Keep(std::move(replaced));
        return true;
    });
    for (std::size_t i = 0; i < redefinitions.size(); ++i) {
        if (places[i]) {
            target->m_Brought.At(*places[i]).declaration = std::move(redefinitions[i]);
        } else {
            carried.Add(std::move(redefinitions[i]));
        }
    }
}

void CKTXMLSchemaDoc::MergeInto(CKTXMLSchemaDoc* target) const {
    Append(target->m_SchemaElementList, m_SchemaElementList);
    Append(target->m_NamespaceDeclList, m_NamespaceDeclList);
}

#include "xmlgen/KTXMLCOBOLExternalMapping.h"

#include <array>
#include <utility>

namespace {

struct TextField {
    std::string_view name;
    std::string CKTXMLCOBOLMapping::*text;
};

struct FlagField {
    std::string_view name;
    bool CKTXMLCOBOLMapping::*flag;
};

constexpr std::array kTextFields = {
    TextField{"cobol-name", &CKTXMLCOBOLMapping::m_sCobolName},
    TextField{"xml-name", &CKTXMLCOBOLMapping::m_sXMLName},
    TextField{"xml-type", &CKTXMLCOBOLMapping::m_sXMLType},
    TextField{"xml-namespace", &CKTXMLCOBOLMapping::m_sXMLNamespace},
};

constexpr std::array kFlagFields = {
    FlagField{"cobol-count-in", &CKTXMLCOBOLMapping::m_bCobolCountIn},
    FlagField{"xml-attribute", &CKTXMLCOBOLMapping::m_bXMLAttribute},
};

/// The text of a field without the white space that laying the file out puts around it.
std::string FieldText(const CKTXMLElement* e) {
    constexpr const char* kWhiteSpace = " \t\r\n";
    const std::string& text = e->getValue();
    const std::size_t begin = text.find_first_not_of(kWhiteSpace);
    return begin == std::string::npos
               ? std::string()
               : text.substr(begin, text.find_last_not_of(kWhiteSpace) - begin + 1);
}

/// Copies a field element into `entry` (may be null). False when the element is no field.
bool TakeField(const CKTXMLElement* e, CKTXMLCOBOLMapping* entry) {
    for (const TextField& field : kTextFields) {
        if (e->getName() == field.name) {
            if (entry != nullptr) {
                entry->*field.text = FieldText(e);
            }
            return true;
        }
    }
    for (const FlagField& field : kFlagFields) {
        if (e->getName() == field.name) {
            if (entry != nullptr) {
                entry->*field.flag = FieldText(e) == "true";
            }
            return true;
        }
    }
    return false;
}

}  // namespace

// Walks with a stack of its own, because a file may be nested without bound.
bool CKTXMLCOBOLExternalMapping::Initialize(const CKTXMLElement* e, CKTXMLCOBOLMapping* current) {
    std::vector<std::pair<const CKTXMLElement*, CKTXMLCOBOLMapping*>> pending = {{e, current}};
    while (!pending.empty()) {
        auto [element, entry] = pending.back();
        pending.pop_back();
        if (element == nullptr) {
            continue;
        }
        if (element != e) {
            pending.emplace_back(element->getNextSibling(), entry);
        }
        if (element->isParent() && !TakeElement(element, entry)) {
            ClearAndDestroy();
            return false;
        }
        pending.emplace_back(element->getFirstChildElem(), entry);
    }
    return true;
}

bool CKTXMLCOBOLExternalMapping::TakeElement(const CKTXMLElement* e, CKTXMLCOBOLMapping*& current) {
    if (e->getName() == "xml-cobol-mapping-file") {
        return true;
    }
    if (e->getName() == "xml-cobol-mapping") {
        current = addXMLCOBOLMapping(std::make_unique<CKTXMLCOBOLMapping>());
        return true;
    }
    m_bIndexed = false;
    return TakeField(e, current);
}

CKTXMLCOBOLMapping* CKTXMLCOBOLExternalMapping::addXMLCOBOLMapping(
    std::unique_ptr<CKTXMLCOBOLMapping> entry) {
    m_bIndexed = false;
    if (!m_Entries.empty()) {
        m_Entries.back()->setNextSibling(entry.get());
        entry->setPrevSibling(m_Entries.back().get());
    }
    m_Entries.push_back(std::move(entry));
    return m_Entries.back().get();
}

CKTXMLCOBOLMapping* CKTXMLCOBOLExternalMapping::findMapping(std::string_view cobolName,
                                                            int /*index*/) {
    BuildIndex();
    const auto found = m_Index.find(cobolName);
    return found == m_Index.end() ? nullptr : found->second;
}

CKTXMLCOBOLMapping* CKTXMLCOBOLExternalMapping::FindAndMark(const CKTQualifiedName& name) {
    BuildIndex();
    const auto found = m_Index.find(name);
    if (found == m_Index.end()) {
        return nullptr;
    }
    found->second->m_bMatched = true;
    return found->second;
}

void CKTXMLCOBOLExternalMapping::ForgetMatches() {
    for (const auto& entry : m_Entries) {
        entry->m_bMatched = false;
    }
}

std::vector<const CKTXMLCOBOLMapping*> CKTXMLCOBOLExternalMapping::FindUnmatched() {
    std::vector<const CKTXMLCOBOLMapping*> unmatched;
    for (const auto& entry : m_Entries) {
        // Of several entries with one name only the first is ever found.
        if (!entry->m_bMatched && !findMapping(entry->m_sCobolName, 0)->m_bMatched) {
            unmatched.push_back(entry.get());
        }
    }
    return unmatched;
}

void CKTXMLCOBOLExternalMapping::BuildIndex() {
    if (m_bIndexed) {
        return;
    }
    m_Index.clear();
    m_Index.reserve(m_Entries.size());
    for (const auto& entry : m_Entries) {
        m_Index.try_emplace(entry->m_sCobolName, entry.get());
    }
    m_bIndexed = true;
}

CKTXMLCOBOLMapping* CKTXMLCOBOLExternalMapping::getFirst() const {
    return m_Entries.empty() ? nullptr : m_Entries.front().get();
}

void CKTXMLCOBOLExternalMapping::ClearAndDestroy() {
    m_Index.clear();
    m_bIndexed = false;
    m_Entries.clear();
}

#include "schema/KTCOBOLGenerator.h"

#include <algorithm>
#include <iostream>

#include "schema/GeneratorState.h"
#include "support/Console.h"
#include "support/Files.h"

/// Counts how deeply constructs are nested at the moment.
class CKTCOBOLGenerator::CKTNestingGuard {
public:
    explicit CKTNestingGuard(unsigned& nesting) : m_nNesting(nesting) { ++m_nNesting; }
    ~CKTNestingGuard() { --m_nNesting; }
    CKTNestingGuard(const CKTNestingGuard&) = delete;
    CKTNestingGuard& operator=(const CKTNestingGuard&) = delete;

private:
    unsigned& m_nNesting;
};

bool CKTCOBOLGenerator::GenerateFile(const std::string& outputName, const std::string& writerText,
                                     bool writerFlag1, bool writerFlag2) {
    if (outputName.empty()) {
        WriteLine(std::cout, {"Invalid filename.  Outputting  to console:\n"});
    }
    CKTOutputFile file(outputName);
    const bool toFile = file.IsOpen();
    if (m_pDocument == nullptr) {
        WriteLine(std::cerr, {"Internal Error : Error initializing schema document\n"});
    } else if (m_pDocument->getSchemaElement() == nullptr) {
        WriteLine(std::cerr, {"Internal Error : Unable to locate schema element\n"});
    } else {
        CKTXMLElement* schema = m_pDocument->getSchemaElement();
        GeneratorState().currentSchemaElement = schema;
        m_sWriterText = writerText;
        m_bWriterFlag1 = writerFlag1;
        m_bWriterFlag2 = writerFlag2;
        CKTCOBOLRecordItem* current = nullptr;
        getCOBOLFromSchema(schema, 1, 7, &current);
        std::cerr << "\n";
    }
    // A record that went to a silenced console is lost, and nothing else says so.
    if (!file.Close() || (!toFile && IsQuiet())) {
        ReportUnwritableOutput(outputName);
    }
    return toFile;
}

CKTCOBOLRecordItem* CKTCOBOLGenerator::getCOBOLFromSchema(CKTXMLElement* e, unsigned level,
                                                          unsigned indent,
                                                          CKTCOBOLRecordItem** current) {
    if (e == nullptr || m_Excess != Excess::None) {
        return nullptr;
    }
    const CKTNestingGuard nesting(m_nNesting);
    if (++m_nElementsVisited > kMaxElementsVisited || m_nNesting > kMaxNesting) {
        m_Excess = Excess::TooComplex;
        return nullptr;
    }
    const Item* before = *current;
    Item* result = Dispatch(e, level, indent, current);
    if (result == nullptr && *current == before && m_Excess == Excess::None) {
        PruneEmptyItem(e, current);
    }
    return result;
}

CKTCOBOLRecordItem* CKTCOBOLGenerator::Dispatch(CKTXMLElement* e, unsigned level, unsigned indent,
                                                Item** current) {
    switch (getElementType(e)) {
        case GeneratorKind::Schema:
            ConvertSchema(e, level, indent);
            return nullptr;
        case GeneratorKind::Element:
            return ProcessElementElement(e, level, indent, current);
        case GeneratorKind::Attribute:
            return ProcessAttributeElement(e, level, indent, current);
        case GeneratorKind::AttributeGroup:
        case GeneratorKind::Group:
        case GeneratorKind::Sequence:
        case GeneratorKind::Choice:
        case GeneratorKind::Union:
        case GeneratorKind::List:
        case GeneratorKind::All:
        case GeneratorKind::Any:
        case GeneratorKind::AnyAttribute:
            return ProcessModelGroup(e, level, indent, current);
        case GeneratorKind::Extension:
            return ProcessElementExtension(e, level, indent, current);
        case GeneratorKind::Restriction:
            return ProcessElementRestriction(e, level, indent, current);
        case GeneratorKind::SimpleType:
        case GeneratorKind::ComplexType:
        case GeneratorKind::SimpleContent:
        case GeneratorKind::ComplexContent:
            return ProcessTypeDefinition(e, level, indent, current);
        default:
            return *current;
    }
}

void CKTCOBOLGenerator::ConvertSchema(CKTXMLElement* schema, unsigned level, unsigned indent) {
    bool processChildren = false;
    if (!ProcessSchemaElement(schema, processChildren)) {
        return;
    }
    std::vector<CKTXMLElement*> heads;
    getSchemaHeadElement(heads);
    std::size_t written = 0;
    for (CKTXMLElement* head : heads) {
        if (ConvertHead(head, level, indent)) {
            ++written;
            std::cout.put('\n');
        }
        m_pRecord.reset();
    }
    std::cerr << "\n";
    WriteLine(std::cerr, {"Successfully converted ", std::to_string(written), " of ",
                          std::to_string(heads.size()), " schema head element(s)."});
}

bool CKTCOBOLGenerator::ConvertHead(CKTXMLElement* head, unsigned level, unsigned indent) {
    m_Excess = Excess::None;
    m_nItemsMade = 0;
    m_nElementsVisited = 0;
    m_ListBases.clear();
    const int saidBefore = m_nErrorCount + m_nWarningCount;
    Item* current = nullptr;
    const unsigned outerNesting = std::exchange(m_nNesting, 0);
    const Item* record = getCOBOLFromSchema(head, level, indent, &current);
    m_nNesting = outerNesting;
    const std::string* name = AttributeValue(head, "name");
    const std::string_view shownName = name == nullptr ? std::string_view() : *name;
    if (m_Excess == Excess::None) {
        const bool written =
            record != nullptr &&
            Item::OutputCOBOLItem(m_pRecord.get(), m_sWriterText, m_bWriterFlag1, m_bWriterFlag2);
        if (!written && m_nErrorCount + m_nWarningCount == saidBefore) {
            CKTItemText dataName;
            Item::setCOBOLDataName(dataName, shownName);
            Item::ReportEmptyStructure(dataName);
        }
        return written;
    }
    WriteLine(std::cerr, {"Error : Record \"", shownName,
                          m_Excess == Excess::TooManyItems
                              ? "\" exceeds 1000000 data items.  Record will not be converted."
                              : "\" is too complex to convert.  Record will not be converted."});
    m_Excess = Excess::None;
    return false;
}

bool CKTCOBOLGenerator::ProcessSchemaElement(const CKTXMLElement* schema, bool& processChildren) {
    const std::string* form = AttributeValue(schema, "attributeFormDefault");
    if (form != nullptr && *form == "true") {
        WriteLine(std::cerr,
                  {"Error : COBOL XML does not support namespace qualifiers for attributes"
                   " in instance documents"});
        return false;
    }
    processChildren = true;
    return true;
}

CKTCOBOLRecordItem* CKTCOBOLGenerator::ProcessTypeDefinition(CKTXMLElement* e, unsigned level,
                                                             unsigned indent, Item** current) {
    Item* item = *current;
    if (item == nullptr) {
        return nullptr;
    }
    if (item->m_pSourceElement == nullptr) {
        item->m_pSourceElement = e;
    }
    if (e->getFirstChildElem() == nullptr && e->isParent()) {
        if (const std::string* name = AttributeValue(e->getParent(), "name")) {
            WriteLine(std::cerr, {"Warning : Cannot convert unconstrained type \"", *name,
                                  "\" to a valid COBOL data item. An XML Schema element requires a "
                                  "type=\"...\" attribute for successful conversion."});
            return nullptr;
        }
    }
    const std::string* mixed = AttributeValue(e, "mixed");
    if (mixed != nullptr && *mixed == "true" && !item->m_bHasMixedValue) {
        item->m_bHasMixedValue = true;
        if (Item* text = MakeGeneratedItem(item, item->m_sDataName, "-mixed-value")) {
            text->m_sPicType = "X";
            text->m_sPicLength = "80";
        }
    }
    WalkChildren(e, level, indent, current);
    if (*current != item) {
        return *current;
    }
    const bool maySplit = !item->m_bIsAttribute && (item->HasValue() || item->m_bIsList) &&
                          (mixed == nullptr || mixed->empty() || *mixed == "false");
    if (maySplit && std::any_of(item->m_Children.begin(), item->m_Children.end(),
                                [](const auto& child) { return child->m_nLevel < 50; })) {
        if (item->m_bIsList) {
            LeaveListOut(item);
        } else {
            MoveValue(item, true);
        }
    }
    return item;
}

void CKTCOBOLGenerator::WalkChildren(const CKTXMLElement* e, unsigned level, unsigned indent,
                                     Item** current) {
    const Item* before = *current;
    for (CKTXMLElement* child = e->getFirstChildElem(); child != nullptr && *current == before;
         child = child->getNextSibling()) {
        getCOBOLFromSchema(child, level, indent, current);
        if (m_Excess != Excess::None) {
            return;
        }
    }
}

void CKTCOBOLGenerator::PruneEmptyItem(const CKTXMLElement* e, Item** current) {
    Item* item = *current;
    if (item == nullptr) {
        return;
    }
    for (const CKTXMLElement* up = e; up != item->m_pSourceElement; up = up->getParent()) {
        if (up == nullptr || up->getNextSibling() != nullptr) {
            return;
        }
    }
    if (!item->m_Children.empty() || item->HasValue() || item->m_bIsAttribute) {
        return;
    }
    *current = item->m_pParent;
    RemoveItem(item);
}

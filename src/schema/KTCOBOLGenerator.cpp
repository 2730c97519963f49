// The facade: the output file, the head elements one after the other, and how each of them ended.
// Records are written as soon as they are complete and then destroyed, so memory is that of the
// largest record. What goes wrong in one record does not stop the next.

#include "schema/KTCOBOLGenerator.h"

#include <iostream>
#include <utility>

#include "cobol/Complaints.h"
#include "schema/Complaints.h"
#include "schema/GeneratorState.h"
#include "schema/HeadElements.h"
#include "support/Complaints.h"
#include "support/Console.h"
#include "support/Files.h"

namespace {

void ReportExcess(CKTRecordTree::Excess excess, std::string_view record) {
    if (excess == CKTRecordTree::Excess::TooManyItems) {
        Report<SchemaMessage::TooManyItems>(record, kMaxRecordItems);
    } else {
        Report<SchemaMessage::TooComplex>(record);
    }
}

}  // namespace

bool CKTCOBOLGenerator::GenerateFile(const std::string& outputName, const std::string& prefix,
                                     bool countIn, bool uniqueNames) {
    if (outputName.empty()) {
        Report<SchemaMessage::NoFileName>();
    }
    CKTOutputFile file(outputName);
    const bool toFile = file.IsOpen();
    if (m_pDocument == nullptr) {
        Report<SchemaMessage::NoDocument>();
    } else if (m_pDocument->getSchemaElement() == nullptr) {
        Report<SchemaMessage::NoSchema>();
    } else {
        CKTXMLElement* schema = m_pDocument->getSchemaElement();
        // The last place in which names are resolved, for every document of the set.
        GeneratorState().currentSchemaElement = schema;
        m_Writer = {prefix, countIn, uniqueNames};
        CKTCOBOLRecordItem* current = nullptr;
        getCOBOLFromSchema(schema, kFirstLevel, kFirstIndent, &current);
        std::cerr << "\n";
    }
    // A record that went to a silenced console is lost, and nothing else says so.
    if (!file.Close() || (!toFile && IsQuiet())) {
        Report<SupportMessage::UnwritableOutput>(outputName);
    }
    return toFile;
}

CKTCOBOLRecordItem* CKTCOBOLGenerator::getCOBOLFromSchema(CKTXMLElement* e, unsigned level,
                                                          unsigned indent,
                                                          CKTCOBOLRecordItem** current) {
    // Everything below counts from its parent.
    m_Walk.Records().PlaceFirstItem(level, indent);
    if (e != nullptr && getElementType(e) == GeneratorKind::Schema) {
        ConvertSchema(e);
        return nullptr;
    }
    OpenItem open(*current);
    CKTCOBOLRecordItem* parent = open.item == nullptr ? nullptr : open.item->m_pParent;
    const Answer answer = m_Walk.Walk(e, open);
    if (answer == Answer::ItemGone) {
        *current = parent;
    }
    if (answer != Answer::Made) {
        return nullptr;
    }
    return open.item == nullptr ? m_Walk.Records().Record() : open.item;
}

void CKTCOBOLGenerator::ConvertSchema(CKTXMLElement* schema) {
    bool processChildren = false;
    if (!ProcessSchemaElement(schema, processChildren)) {
        return;
    }
    std::vector<CKTXMLElement*> heads;
    getSchemaHeadElement(heads);
    std::size_t written = 0;
    for (CKTXMLElement* head : heads) {
        if (ConvertHead(head)) {
            ++written;
            // Into the copybook: an empty line behind each record.
            std::cout.put('\n');
        }
        // Gives the memory of the record back before the next head is tried.
        m_Walk.Records().Begin();
    }
    std::cerr << "\n";
    Report<SchemaMessage::Converted>(written, heads.size());
}

bool CKTCOBOLGenerator::ConvertHead(CKTXMLElement* head) {
    // Messages are the only trace of why nothing came of a head, so their count tells whether the
    // user knows.
    const int saidBefore = m_nErrorCount + m_nWarningCount;
    const Answer answer = m_Walk.WalkHead(head);
    const std::string* name = AttributeValue(head, "name");
    const std::string_view shownName = name == nullptr ? std::string_view() : *name;
    if (answer == Answer::GivenUp) {
        ReportExcess(m_Walk.Records().GivenUpFor(), shownName);
        return false;
    }
    const bool written = answer == Answer::Made && CKTCOBOLRecordItem::OutputCOBOLItem(
                                                       m_Walk.Records().Record(), m_Writer.prefix,
                                                       m_Writer.countIn, m_Writer.uniqueNames);
    if (!written && m_nErrorCount + m_nWarningCount == saidBefore) {
        CKTItemText dataName;
        CKTCOBOLRecordItem::setCOBOLDataName(dataName, shownName);
        Report<CobolMessage::EmptyItem>(dataName);
    }
    return written;
}

bool CKTCOBOLGenerator::ProcessSchemaElement(const CKTXMLElement* schema, bool& processChildren) {
    const std::string* form = AttributeValue(schema, "attributeFormDefault");
    if (form != nullptr && *form == "true") {
        Report<SchemaMessage::QualifiedAttributes>();
        return false;
    }
    processChildren = true;
    return true;
}

CKTXMLElement* CKTCOBOLGenerator::getSchemaHeadElement(std::vector<CKTXMLElement*>& heads) {
    if (m_pDocument == nullptr || m_pDocument->getSchemaElement() == nullptr) {
        return nullptr;
    }
    const std::size_t earlier = heads.size();
    AppendHeads(*m_pDocument, m_Walk.Names(), m_ChosenHeads, heads);
    return heads.size() - earlier == 1 ? heads.back() : nullptr;
}

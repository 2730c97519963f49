// The traversal that all outputs share, and the files that they go to. The view of the record is
// made once for all outputs; it is made anew when a mapping set comes in between. Files are opened
// one after the other, and standard output leads into the open one: the writers do not know where
// they write. An output that fails does not stop the next.

#include "xmlgen/KTXMLGenerator.h"

#include <algorithm>

#include "support/Complaints.h"
#include "support/Console.h"
#include "support/Files.h"
#include "support/Text.h"
#include "xmlgen/Complaints.h"
#include "xmlgen/CopybookWriter.h"
#include "xmlgen/MappingWriter.h"
#include "xmlgen/SchemaWriter.h"
#include "xmlgen/ServiceWriter.h"

namespace {

// A mapping file made for another record would fill the screen.
constexpr std::size_t kMostIdleEntries = 20;

}  // namespace

CKTXMLGenerator::CKTXMLGenerator(CKTXMLElement* dictionary, CKTXMLCOBOLExternalMapping* mapping) {
    setCOBOLDataDictionary(dictionary);
    m_pMapping = mapping;
}

void CKTXMLGenerator::setCOBOLDataDictionary(CKTXMLElement* dictionary) {
    if (dictionary != nullptr) {
        Reset();
        m_pDictionary = dictionary;
        m_Found = FindDictionaryRecord(dictionary);
    }
}

void CKTXMLGenerator::setXMLCOBOLExternalMapping(CKTXMLCOBOLExternalMapping* mapping) {
    if (mapping != nullptr) {
        m_pMapping = mapping;
        // It shows what the old mapping set says.
        m_pView.reset();
    }
}

void CKTXMLGenerator::Reset() {
    m_pDictionary = nullptr;
    m_pMapping = nullptr;
    m_Found = {};
    m_pView.reset();
}

void CKTXMLGenerator::ReportIdleMapping(const std::string& mappingFile) {
    if (m_pMapping == nullptr || !HasRecord()) {
        return;
    }
    if (m_pMapping->getFirst() == nullptr) {
        Report<XmlgenMessage::EmptyMapping>(mappingFile);
        return;
    }
    View();  // which matches items and entries
    const std::vector<const CKTXMLCOBOLMapping*> idle = m_pMapping->FindUnmatched();
    for (std::size_t i = 0; i < std::min(idle.size(), kMostIdleEntries); ++i) {
        Report<XmlgenMessage::IdleEntry>(idle[i]->m_sCobolName);
    }
    if (idle.size() > kMostIdleEntries) {
        Report<XmlgenMessage::IdleEntries>(idle.size() - kMostIdleEntries);
    }
}

bool CKTXMLGenerator::CanWrite() const {
    if (m_pDictionary == nullptr) {
        Report<XmlgenMessage::NoDictionary>();
    } else if (m_pDictionary->getFormatTarget() == nullptr) {
        Report<XmlgenMessage::NoTarget>();
    } else if (m_pDictionary->getXMLFormatter() == nullptr) {
        Report<XmlgenMessage::NoFormatter>();
    } else {
        return true;
    }
    return false;
}

bool CKTXMLGenerator::GenerateFile(const std::string& dataDictFile, const std::string& mappingFile,
                                   const std::string& schemaFile, const std::string& cobolFile,
                                   FILE_TYPE type, const std::string& text, bool countIn) {
    if (!CanWrite()) {
        return false;
    }
    m_bCountIn = countIn;
    // A type without a file of its own has no name, and is complained of as such.
    const std::string name = type == EXTERNAL_MAPPING ? mappingFile
                             : type == XML_SCHEMA     ? schemaFile
                             : type == ENHANCED_COBOL ? cobolFile
                                                      : std::string();
    CKTOutputFile file(name);
    // Without a file the output goes to the console, and the run goes on.
    const bool toFile = file.IsOpen();
    if (!toFile && IsQuiet()) {
        // What goes to a silenced console is lost.
        Report<SupportMessage::UnwritableOutput>(name);
    } else if (name.empty()) {
        Report<XmlgenMessage::NoFileName>();
    } else if (!toFile) {
        Report<XmlgenMessage::UnopenedOutput>(name);
    }
    {
        // In a scope of its own: what it holds back is written before the file is closed.
        CKTMarkup markup(*m_pDictionary->getXMLFormatter(), *m_pDictionary->getFormatTarget());
        WriteOutput(type, markup, dataDictFile, text);
    }
    if (!file.Close()) {
        Report<SupportMessage::UnwritableOutput>(name);
        return false;
    }
    return toFile;
}

const CKTDictionaryView& CKTXMLGenerator::View() {
    if (m_pView == nullptr) {
        m_pView = std::make_unique<CKTDictionaryView>(m_Found, m_pMapping);
    }
    return *m_pView;
}

void CKTXMLGenerator::WriteOutput(FILE_TYPE type, CKTMarkup& markup,
                                  const std::string& dataDictFile, const std::string& prefix) {
    if (type != ENHANCED_COBOL) {
        markup.Add("<?xml version=\"1.0\" encoding=\"" + markup.EncodingName() + "\"?>\n");
    }
    const CKTDictionaryView& view = View();
    std::unique_ptr<CKTDictionaryWriter> writer;
    switch (type) {
        case INTERNAL_MAPPING:
            writer = std::make_unique<CKTServiceWriter>(markup, dataDictFile);
            break;
        case EXTERNAL_MAPPING:
            writer = std::make_unique<CKTMappingWriter>(markup, m_bCountIn);
            break;
        case XML_SCHEMA:
            writer = std::make_unique<CKTSchemaWriter>(
                markup, m_pMapping != nullptr,
                view.IsEmpty() ? std::string_view() : view[CKTDictionaryView::kRecord].uri);
            break;
        case ENHANCED_COBOL:
            writer = std::make_unique<CKTCopybookWriter>(m_Found.passed, prefix, m_bCountIn);
            break;
        default:
            Report<XmlgenMessage::NoFileType>();
            return;
    }
    if (!view.IsEmpty()) {
        Traverse(view, CKTDictionaryView::kProgram, *writer);
    }
}

/// Shows the item at `index` and what is below it to `writer`. The recursion is as deep as the
/// view, which is bounded.
void CKTXMLGenerator::Traverse(const CKTDictionaryView& view, std::uint32_t index,
                               CKTDictionaryWriter& writer) {
    const DictionaryItem& item = view[index];
    if (!writer.Begin(item)) {
        return;
    }
    // Two passes over the members keep the order within each kind.
    const bool split = item.kind == DictionaryKind::Group && writer.PutsAttributesLast();
    // An item ends where its subtree does, so this goes from sibling to sibling.
    for (std::uint32_t member = index + 1; member < item.end; member = view[member].end) {
        if (!split || !view[member].isAttribute) {
            Traverse(view, member, writer);
        }
    }
    for (std::uint32_t member = index + 1; split && member < item.end; member = view[member].end) {
        if (view[member].isAttribute) {
            Traverse(view, member, writer);
        }
    }
    writer.End(item);
}

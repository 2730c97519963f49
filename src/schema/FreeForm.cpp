// Free-form writers on standard output, each of which flushes what it wrote. A layout from before
// the fixed format: no columns, no continuation. The fixed format of the record writer is what the
// runs use.

#include <iostream>

#include "schema/KTCOBOLGenerator.h"

void CKTCOBOLGenerator::writeIndent(unsigned n) {
    std::cout << std::string(n, ' ') << std::flush;
}

void CKTCOBOLGenerator::writeLevelNumber(unsigned level) {
    std::cout << std::string(level <= 9 ? "0" : "") << level << std::string("  ") << std::flush;
}

void CKTCOBOLGenerator::writeRecordName(const std::string& name) {
    if (!name.empty()) {
        std::cout << name + " " << std::flush;
    }
}

void CKTCOBOLGenerator::writeCOBOLType(const std::string& type) {
    writeRecordName(type);
}

void CKTCOBOLGenerator::writeIdentifiedBy(const std::string& xmlName) {
    if (!xmlName.empty()) {
        std::cout << "identified by \"" + xmlName + "\" " << std::flush;
    }
}

void CKTCOBOLGenerator::writeIsAttribute(bool flag) {
    if (flag) {
        std::cout << std::string("is attribute") << std::flush;
    }
}

void CKTCOBOLGenerator::writeRecordItem(const std::string& name, const std::string& type,
                                        const std::string& xmlName, unsigned level, unsigned indent,
                                        bool isAttribute) {
    if (name.empty()) {
        return;
    }
    writeIndent(indent);
    writeLevelNumber(level);
    writeRecordName(name);
    writeCOBOLType(type);
    writeIdentifiedBy(xmlName);
    writeIsAttribute(isAttribute);
}

// Level by level with a stack of its own, because a tree may be nested without bound.
void CKTCOBOLGenerator::dumpElement(const CKTXMLElement* element, const std::string& prefix) {
    std::vector<std::pair<const CKTXMLElement*, std::size_t>> pending = {{element, 0}};
    while (!pending.empty()) {
        const auto [e, depth] = pending.back();
        pending.pop_back();
        if (e == nullptr) {
            continue;
        }
        std::string line = prefix + std::string(depth, ' ') + e->getName() + " ";
        for (const CKTXMLAttribute* a = e->getFirstAttr(); a != nullptr; a = a->getNextSibling()) {
            line += a->getName() + "=\"" + a->getValue() + "\" ";
        }
        std::cout << line + "\n";
        if (e != element) {
            pending.emplace_back(e->getNextSibling(), depth);
        }
        pending.emplace_back(e->getFirstChildElem(), depth + 1);
    }
    std::cout.flush();
}

// Names the fault by throwing it once more and catching it by class. The classes of the parser
// library have no ancestor in common, with each other or with the standard's, so each has a clause
// of its own.

#include "xml/Faults.h"

#include <exception>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/XMLException.hpp>

#include "support/Text.h"
#include "xml/Complaints.h"

std::string DescribeFault() {
    try {
        throw;
    } catch (const std::exception& e) {
        return e.what();
    } catch (const xercesc::OutOfMemoryException&) {
        return MessageText<XmlMessage::OutOfMemory>();
    } catch (const xercesc::XMLException& e) {
        return NarrowMessage(e.getMessage());
    } catch (const xercesc::SAXException& e) {
        return NarrowMessage(e.getMessage());
    } catch (const xercesc::DOMException& e) {
        return NarrowMessage(e.getMessage());
    } catch (...) {
        return MessageText<XmlMessage::UnknownFault>();
    }
}

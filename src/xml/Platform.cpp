// Start and stop of the parser library, which counts its own starts, so that objects may overlap. A
// failure is one line and nothing more.

#include "xml/Platform.h"

#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>

#include "support/Text.h"
#include "xml/Complaints.h"

namespace {

template <XmlMessage kComplaint, typename Step>
void Attempt(Step step) {
    try {
        step();
    } catch (const xercesc::XMLException& e) {
        Report<kComplaint>(NarrowMessage(e.getMessage()));
    }
}

}  // namespace

CKTPlatform::CKTPlatform() {
    Start();
}

void CKTPlatform::Start() {
    Attempt<XmlMessage::NoStart>([] { xercesc::XMLPlatformUtils::Initialize(); });
}

CKTPlatform::~CKTPlatform() {
    Attempt<XmlMessage::NoStop>([] { xercesc::XMLPlatformUtils::Terminate(); });
}

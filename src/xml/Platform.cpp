// Start and stop of the parser library, which counts its own starts.

#include "xml/Platform.h"

#include <iostream>

#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>

#include "support/Console.h"
#include "support/Text.h"

namespace {

template <typename Step>
void Attempt(Step step, const char* complaint) {
    try {
        step();
    } catch (const xercesc::XMLException& e) {
        WriteLine(std::cerr, {complaint, NarrowMessage(e.getMessage())});
    }
}

}  // namespace

CKTPlatform::CKTPlatform() {
    Start();
}

void CKTPlatform::Start() {
    Attempt([] { xercesc::XMLPlatformUtils::Initialize(); },
            "Error during Xerces-c Initialization. Exception message: ");
}

CKTPlatform::~CKTPlatform() {
    Attempt([] { xercesc::XMLPlatformUtils::Terminate(); },
            "Error during Xerces-c termination. Exception message: ");
}

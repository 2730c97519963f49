// Inputs that are fetched. A server that cannot be spoken to is told of by the exceptions of the
// parser library's own accessor, whose texts name what went wrong. Any other failure is an
// input that cannot be opened, which the library tells in its usual line.

#include "xml/RemoteInput.h"

#include <cstdlib>
#include <memory>

#include <xercesc/util/BinMemInputStream.hpp>
#include <xercesc/util/XMLExceptMsgs.hpp>
#include <xercesc/util/XMLNetAccessor.hpp>

#include "support/Progress.h"
#include "xml/Fetch.h"
#include "xml/Paths.h"

using xercesc::NetAccessorException;
using xercesc::XMLExcepts;

namespace {

/// Fetched bytes, counted for whoever waits for them.
class CKTCountedBytes : public xercesc::BinMemInputStream {
public:
    // Refers to the bytes: what was fetched stays for the process.
    explicit CKTCountedBytes(const std::string& bytes)
        : BinMemInputStream(reinterpret_cast<const XMLByte*>(bytes.data()), bytes.size(),
                            BufOpt_Reference) {}

    XMLSize_t readBytes(XMLByte* bytes, const XMLSize_t most) override {
        const XMLSize_t count = BinMemInputStream::readBytes(bytes, most);
        ReportBytesRead(count);
        return count;
    }
};

}  // namespace

CKTRemoteSource::CKTRemoteSource(const xercesc::XMLURL& url) : m_Url(url) {
    setSystemId(url.getURLText());
}

bool CKTRemoteSource::IsNetworkOff() {
    return std::getenv("DORVEX_NONET") != nullptr;
}

xercesc::BinInputStream* CKTRemoteSource::makeStream() const {
    if (IsNetworkOff()) {
        return nullptr;
    }
    const XMLCh* text = m_Url.getURLText();
    const Fetched& fetched = FetchOnce(PathBytes(text));
    switch (fetched.end) {
        case FetchEnd::Complete:
            return std::make_unique<CKTCountedBytes>(fetched.bytes).release();
        case FetchEnd::UnknownHost:
            throw NetAccessorException(__FILE__, __LINE__, XMLExcepts::NetAcc_TargetResolution,
                                       m_Url.getHost());
        case FetchEnd::NotConnected:
            throw NetAccessorException(__FILE__, __LINE__, XMLExcepts::NetAcc_ConnSocket, text);
        case FetchEnd::CutOff:
            throw NetAccessorException(__FILE__, __LINE__, XMLExcepts::NetAcc_ReadSocket, text);
        default:
            return nullptr;
    }
}

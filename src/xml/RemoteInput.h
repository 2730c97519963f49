#ifndef DORVEX_XML_REMOTEINPUT_H
#define DORVEX_XML_REMOTEINPUT_H

#include <xercesc/sax/InputSource.hpp>
#include <xercesc/util/XMLURL.hpp>

/// Something elsewhere. It is fetched when it is opened for the first time and kept for the run.
class CKTRemoteSource : public xercesc::InputSource {
public:
    /// Copies `url`, whose text becomes the system identifier. Fetches nothing yet.
    explicit CKTRemoteSource(const xercesc::XMLURL& url);

    /// The stream; null when the network is off or the fetch failed. Throws the library's own
    /// exceptions for a server that is not found or not reached, or that breaks off.
    [[nodiscard]] xercesc::BinInputStream* makeStream() const override;

    /// Says whether DORVEX_NONET is set, so that such a source is never fetched.
    static bool IsNetworkOff();

private:
    xercesc::XMLURL m_Url;
};

#endif

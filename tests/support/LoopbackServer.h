#ifndef DORVEX_TESTS_SUPPORT_LOOPBACKSERVER_H
#define DORVEX_TESTS_SUPPORT_LOOPBACKSERVER_H

#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "Descriptor.h"

/// A server on the loopback address that answers one request after the other with its files, by
/// name. The first part of a path may ask for another manner:
///     moved/X    a redirection to /X      file/X     a redirection to the file /X of the machine
///     cut/X      half of X                slow/X     a byte of X every 150 milliseconds
///     silent/X   nothing
/// It ends with its object; every wait of it ends then, or when the other side hangs up.
class CKTLoopbackServer {
public:
    /// Throws std::system_error when there is no loopback address to listen on.
    explicit CKTLoopbackServer(std::map<std::string, std::string> files);
    ~CKTLoopbackServer();
    CKTLoopbackServer(const CKTLoopbackServer&) = delete;
    CKTLoopbackServer& operator=(const CKTLoopbackServer&) = delete;

    [[nodiscard]] int Port() const { return m_nPort; }
    [[nodiscard]] std::string Url(const std::string& path) const;

    /// The paths that were asked for, in order.
    std::vector<std::string> Requests();

private:
    void Serve();
    void Answer(int client);
    void Send(int client, const std::string& path);
    /// Waits until there is something to read or `milliseconds` (below 0: forever) are over. False
    /// when the server is to end or the time is over.
    [[nodiscard]] bool WaitFor(int file, int milliseconds) const;

    std::map<std::string, std::string> m_Files;
    CKTDescriptor m_Listener;
    Pipe m_Stop;
    int m_nPort = 0;
    std::mutex m_Mutex;
    std::vector<std::string> m_Requests;
    std::thread m_Thread;
};

#endif

#include "LoopbackServer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <string_view>
#include <utility>

namespace {

constexpr int kRequestMilliseconds = 10'000;
constexpr int kPauseMilliseconds = 150;
constexpr std::size_t kMaxRequest = 65'536;

void SendAll(int client, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = ::send(client, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0) {
            return;
        }
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
}

bool TakePrefix(std::string& path, std::string_view prefix) {
    const bool taken = path.starts_with(prefix);
    path.erase(0, taken ? prefix.size() : 0);
    return taken;
}

}  // namespace

CKTLoopbackServer::CKTLoopbackServer(std::map<std::string, std::string> files)
    : m_Files(std::move(files)),
      m_Listener(CheckCall(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0), "socket")) {
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    CheckCall(::bind(m_Listener.Number(), generic, size), "bind");
    CheckCall(::listen(m_Listener.Number(), 16), "listen");
    CheckCall(::getsockname(m_Listener.Number(), generic, &size), "getsockname");
    m_nPort = ntohs(address.sin_port);
    m_Thread = std::thread(&CKTLoopbackServer::Serve, this);
}

CKTLoopbackServer::~CKTLoopbackServer() {
    m_Stop.writer.Close();
    m_Thread.join();
}

std::string CKTLoopbackServer::Url(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(m_nPort) + "/" + path;
}

std::vector<std::string> CKTLoopbackServer::Requests() {
    const std::lock_guard lock(m_Mutex);
    return m_Requests;
}

bool CKTLoopbackServer::WaitFor(int file, int milliseconds) const {
    std::array<pollfd, 2> files = {{{file, POLLIN, 0}, {m_Stop.reader.Number(), POLLIN, 0}}};
    return ::poll(files.data(), files.size(), milliseconds) > 0 && files[1].revents == 0;
}

void CKTLoopbackServer::Serve() {
    while (WaitFor(m_Listener.Number(), -1)) {
        const CKTDescriptor client(::accept4(m_Listener.Number(), nullptr, nullptr, SOCK_CLOEXEC));
        if (client.IsOpen()) {
            Answer(client.Number());
        }
    }
}

void CKTLoopbackServer::Answer(int client) {
    std::string request;
    std::array<char, 4096> part{};
    while (request.find("\r\n\r\n") == std::string::npos) {
        const ssize_t length =
            WaitFor(client, kRequestMilliseconds) ? ::recv(client, part.data(), part.size(), 0) : 0;
        if (length <= 0 || request.size() > kMaxRequest) {
            return;
        }
        request.append(part.data(), static_cast<std::size_t>(length));
    }
    const std::size_t begin = request.find('/') + 1;
    const std::string path = request.substr(begin, request.find(' ', begin) - begin);
    {
        const std::lock_guard lock(m_Mutex);
        m_Requests.push_back(path);
    }
    Send(client, path);
}

void CKTLoopbackServer::Send(int client, const std::string& path) {
    std::string name = path;
    if (TakePrefix(name, "silent/")) {
        static_cast<void>(WaitFor(client, -1));
        return;
    }
    for (const auto& [manner, target] : {std::pair{"moved/", "/"}, {"file/", "file:///"}}) {
        if (TakePrefix(name, manner)) {
            SendAll(client,
                    "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nConnection: close\r\n"
                    "Location: " +
                        (target + name) + "\r\n\r\n");
            return;
        }
    }
    const bool isCut = TakePrefix(name, "cut/");
    const bool isSlow = TakePrefix(name, "slow/");
    const auto found = m_Files.find(name);
    if (found == m_Files.end()) {
        SendAll(client, "HTTP/1.1 404 Not Found\r\nConnection: close\r\n\r\n<r>not found</r>\n");
        return;
    }
    const std::string& bytes = found->second;
    SendAll(client, "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " +
                        std::to_string(bytes.size()) + "\r\n\r\n");
    if (!isSlow) {
        SendAll(client, std::string_view(bytes).substr(0, bytes.size() / (isCut ? 2 : 1)));
        return;
    }
    for (const char byte : bytes) {
        SendAll(client, {&byte, 1});
        static_cast<void>(WaitFor(client, kPauseMilliseconds));
    }
}

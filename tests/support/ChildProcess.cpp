#include "ChildProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <optional>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Descriptor.h"

namespace {

using Clock = std::chrono::steady_clock;

class CKTSpawnActions {
public:
    CKTSpawnActions() { CheckError(::posix_spawn_file_actions_init(&m_Actions), "spawn actions"); }
    ~CKTSpawnActions() { ::posix_spawn_file_actions_destroy(&m_Actions); }
    CKTSpawnActions(const CKTSpawnActions&) = delete;
    CKTSpawnActions& operator=(const CKTSpawnActions&) = delete;

    posix_spawn_file_actions_t* Get() { return &m_Actions; }

private:
    posix_spawn_file_actions_t m_Actions{};
};

class CKTSpawnAttributes {
public:
    CKTSpawnAttributes() { CheckError(::posix_spawnattr_init(&m_Attributes), "spawn attributes"); }
    ~CKTSpawnAttributes() { ::posix_spawnattr_destroy(&m_Attributes); }
    CKTSpawnAttributes(const CKTSpawnAttributes&) = delete;
    CKTSpawnAttributes& operator=(const CKTSpawnAttributes&) = delete;

    posix_spawnattr_t* Get() { return &m_Attributes; }

private:
    posix_spawnattr_t m_Attributes{};
};

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

pid_t Spawn(ChildCommand& command, const Pipe& output, const Pipe& errors) {
    CKTSpawnActions actions;
    posix_spawn_file_actions_t* list = actions.Get();
    CheckError(::posix_spawn_file_actions_addopen(list, 0, command.input.c_str(), O_RDONLY, 0),
               "stdin");
    CheckError(::posix_spawn_file_actions_adddup2(list, output.writer.Number(), 1), "stdout");
    CheckError(::posix_spawn_file_actions_adddup2(list, errors.writer.Number(), 2), "stderr");
    CheckError(::posix_spawn_file_actions_addchdir_np(list, command.directory.c_str()), "chdir");

    // A caller may ignore SIGPIPE; the child meets it as a program at a console does.
    CKTSpawnAttributes attributes;
    sigset_t defaults;
    sigemptyset(&defaults);
    sigaddset(&defaults, SIGPIPE);
    CheckError(::posix_spawnattr_setsigdefault(attributes.Get(), &defaults), "signals");
    CheckError(::posix_spawnattr_setpgroup(attributes.Get(), 0), "process group");
    CheckError(
        ::posix_spawnattr_setflags(attributes.Get(), POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGDEF),
        "spawn flags");

    std::vector<char*> arguments = Pointers(command.arguments);
    std::vector<char*> environment = Pointers(command.environment);
    pid_t child = 0;
    CheckError(::posix_spawnp(&child, arguments.front(), list, attributes.Get(), arguments.data(),
                              environment.data()),
               "cannot run " + command.arguments.front());
    return child;
}

void Drain(CKTDescriptor& reader, std::string& text) {
    std::array<char, 65536> buffer{};
    const ssize_t count = ::read(reader.Number(), buffer.data(), buffer.size());
    if (count > 0) {
        text.append(buffer.data(), static_cast<std::size_t>(count));
    } else if (count == 0 || errno != EINTR) {
        reader.Close();
    }
}

// True when both streams have come to their end before the deadline.
bool Collect(Pipe& output, Pipe& errors, ChildResult& result, Clock::time_point deadline) {
    while (output.reader.IsOpen() || errors.reader.IsOpen()) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (left <= 0) {
            return false;
        }
        std::array<pollfd, 2> waits{
            {{output.reader.Number(), POLLIN, 0}, {errors.reader.Number(), POLLIN, 0}}};
        if (::poll(waits.data(), waits.size(), static_cast<int>(left)) < 0) {
            continue;
        }
        if (waits[0].revents != 0) {
            Drain(output.reader, result.output);
        }
        if (waits[1].revents != 0) {
            Drain(errors.reader, result.errors);
        }
    }
    return true;
}

std::optional<int> WaitUntil(pid_t child, Clock::time_point deadline) {
    int status = 0;
    while (::waitpid(child, &status, WNOHANG) == 0) {
        if (Clock::now() >= deadline) {
            return std::nullopt;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return status;
}

}  // namespace

ChildResult RunChild(ChildCommand command) {
    Pipe output;
    Pipe errors;
    const pid_t child = Spawn(command, output, errors);
    output.writer.Close();
    errors.writer.Close();

    const Clock::time_point deadline = Clock::now() + command.limit;
    ChildResult result;
    std::optional<int> status;
    if (Collect(output, errors, result, deadline)) {
        status = WaitUntil(child, deadline);
    }
    if (!status) {
        result.timedOut = true;
        ::kill(-child, SIGKILL);
        status = WaitUntil(child, Clock::time_point::max());
    }
    result.status = WIFSIGNALED(*status) ? 128 + WTERMSIG(*status) : WEXITSTATUS(*status);
    return result;
}

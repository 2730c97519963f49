// Runs commands in turn and prints what each run cost.
//
//     measure ROUNDS BATCH COMMAND... [-- COMMAND...]...
//
// A round runs every command once, in the order given (BATCH times in a row, the costs added up).
// The first round warms the caches and is not printed. One line for each command of a counted
// round: round, number of the command, user and system seconds, wall seconds, peak resident KB,
// write system calls, exit status. All standard streams are /dev/null. The exit status is 1 when a
// command could not be started, was killed, or did not end with the same status every time.

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace {

using Command = std::vector<std::string>;

struct Cost {
    double cpu = 0;
    double wall = 0;
    long peak = 0;
    long writes = 0;
    int status = 0;
};

class CKTNullStreams {
public:
    CKTNullStreams() {
        Check(posix_spawn_file_actions_init(&m_Actions));
        Check(posix_spawn_file_actions_addopen(&m_Actions, 0, "/dev/null", O_RDONLY, 0));
        Check(posix_spawn_file_actions_addopen(&m_Actions, 1, "/dev/null", O_WRONLY, 0));
        Check(posix_spawn_file_actions_addopen(&m_Actions, 2, "/dev/null", O_WRONLY, 0));
    }
    ~CKTNullStreams() { posix_spawn_file_actions_destroy(&m_Actions); }
    CKTNullStreams(const CKTNullStreams&) = delete;
    CKTNullStreams& operator=(const CKTNullStreams&) = delete;

    [[nodiscard]] const posix_spawn_file_actions_t* Get() const { return &m_Actions; }

    static void Check(int code) {
        if (code != 0) {
            throw std::system_error(code, std::generic_category(), "posix_spawn");
        }
    }

private:
    posix_spawn_file_actions_t m_Actions{};
};

pid_t Start(const Command& command) {
    std::vector<std::string> words = command;
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);

    const CKTNullStreams streams;
    pid_t child = 0;
    const int code =
        posix_spawn(&child, arguments[0], streams.Get(), nullptr, arguments.data(), environ);
    if (code != 0) {
        throw std::system_error(code, std::generic_category(), command.front());
    }
    return child;
}

// A process that has ended keeps its counters until it is waited for.
long WriteCalls(pid_t ended) {
    std::ifstream counters("/proc/" + std::to_string(ended) + "/io");
    std::string name;
    long value = 0;
    while (counters >> name >> value) {
        if (name == "syscw:") {
            return value;
        }
    }
    throw std::runtime_error("no count of write calls in /proc/PID/io");
}

double Seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

Cost RunOnce(const Command& command) {
    const auto begin = std::chrono::steady_clock::now();
    const pid_t child = Start(command);
    siginfo_t ended{};
    while (waitid(P_PID, static_cast<id_t>(child), &ended, WEXITED | WNOWAIT) != 0) {
        if (errno != EINTR) {
            throw std::system_error(errno, std::generic_category(), "waitid");
        }
    }
    Cost cost;
    cost.wall = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    cost.writes = WriteCalls(child);

    int status = 0;
    rusage usage{};
    if (wait4(child, &status, 0, &usage) != child) {
        throw std::system_error(errno, std::generic_category(), "wait4");
    }
    if (!WIFEXITED(status)) {
        throw std::runtime_error(command.front() + " was killed by signal " +
                                 std::to_string(WTERMSIG(status)));
    }
    cost.cpu = Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
    cost.peak = usage.ru_maxrss;
    cost.status = WEXITSTATUS(status);
    return cost;
}

Cost RunBatch(const Command& command, int batch) {
    Cost total = RunOnce(command);
    for (int run = 1; run < batch; ++run) {
        const Cost cost = RunOnce(command);
        total.cpu += cost.cpu;
        total.wall += cost.wall;
        total.peak = std::max(total.peak, cost.peak);
        total.writes += cost.writes;
        if (cost.status != total.status) {
            throw std::runtime_error(command.front() + " does not always end with the same status");
        }
    }
    return total;
}

std::vector<Command> SplitCommands(const std::vector<std::string>& words) {
    std::vector<Command> commands(1);
    for (const std::string& word : words) {
        if (word == "--") {
            commands.emplace_back();
        } else {
            commands.back().push_back(word);
        }
    }
    for (const Command& command : commands) {
        if (command.empty()) {
            throw std::invalid_argument("a command is empty");
        }
    }
    return commands;
}

void Print(int round, std::size_t number, const Cost& cost) {
    std::printf("%d %zu %.6f %.6f %ld %ld %d\n", round, number, cost.cpu, cost.wall, cost.peak,
                cost.writes, cost.status);
}

void Measure(int rounds, int batch, const std::vector<Command>& commands) {
    std::vector<int> statuses;
    statuses.reserve(commands.size());
    for (const Command& command : commands) {
        statuses.push_back(RunBatch(command, batch).status);
    }
    for (int round = 1; round <= rounds; ++round) {
        for (std::size_t i = 0; i < commands.size(); ++i) {
            const Cost cost = RunBatch(commands[i], batch);
            if (cost.status != statuses[i]) {
                throw std::runtime_error(commands[i].front() +
                                         " does not always end with the same status");
            }
            Print(round, i + 1, cost);
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() < 3) {
        std::cerr << "usage: measure ROUNDS BATCH COMMAND... [-- COMMAND...]...\n";
        return 2;
    }
    try {
        Measure(std::stoi(arguments[0]), std::stoi(arguments[1]),
                SplitCommands({arguments.begin() + 2, arguments.end()}));
    } catch (const std::exception& problem) {
        std::cerr << "measure: " << problem.what() << '\n';
        return 1;
    }
    return 0;
}

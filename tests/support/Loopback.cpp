// Usage: loopback COMMAND ARGUMENT...
// Serves the files below "www" on the loopback address while the command runs, with the port in
// $PORT; then prints each path that was asked for, and how often. Its status is the command's.

#include <cstdlib>
#include <exception>
#include <iostream>
#include <map>
#include <span>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

#include "LoopbackServer.h"
#include "ScratchFiles.h"

int main(int argc, char* argv[]) {
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc) + 1);
    if (argc < 2) {
        std::cerr << "usage: loopback COMMAND ARGUMENT...\n";
        return 2;
    }
    try {
        CKTLoopbackServer server(ReadTree("www"));
        ::setenv("PORT", std::to_string(server.Port()).c_str(), 1);
        const pid_t child = ::fork();
        if (child == 0) {
            ::execvp(arguments[1], &arguments[1]);
            ::_exit(127);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        std::map<std::string, int> times;
        for (const std::string& path : server.Requests()) {
            ++times[path];
        }
        for (const auto& [path, count] : times) {
            std::cout << path << ' ' << count << '\n';
        }
        return WIFEXITED(status) ? WEXITSTATUS(status) : 2;
    } catch (const std::exception& error) {
        std::cerr << "loopback: " << error.what() << '\n';
        return 2;
    }
}

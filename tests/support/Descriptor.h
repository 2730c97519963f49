#ifndef DORVEX_TESTS_SUPPORT_DESCRIPTOR_H
#define DORVEX_TESTS_SUPPORT_DESCRIPTOR_H

#include <array>
#include <cerrno>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

/// Throws std::system_error that names `what` unless `error` is 0.
inline void CheckError(int error, const std::string& what) {
    if (error != 0) {
        throw std::system_error(error, std::generic_category(), what);
    }
}

/// Throws std::system_error with errno when a call has answered a number below 0; returns it.
inline int CheckCall(int result, const std::string& what) {
    CheckError(result < 0 ? errno : 0, what);
    return result;
}

/// Owns an open file descriptor; a number below 0 is none.
class CKTDescriptor {
public:
    explicit CKTDescriptor(int number) : m_nNumber(number) {}
    ~CKTDescriptor() { Close(); }
    CKTDescriptor(const CKTDescriptor&) = delete;
    CKTDescriptor& operator=(const CKTDescriptor&) = delete;

    [[nodiscard]] int Number() const { return m_nNumber; }
    [[nodiscard]] bool IsOpen() const { return m_nNumber >= 0; }

    /// Closes it early; may be called any number of times.
    void Close() {
        if (IsOpen()) {
            ::close(m_nNumber);
        }
        m_nNumber = -1;
    }

private:
    int m_nNumber;
};

/// A pipe of which a child inherits neither end. Throws std::system_error when there is none.
struct Pipe {
    Pipe() : Pipe(Ends()) {}

    CKTDescriptor reader;
    CKTDescriptor writer;

private:
    explicit Pipe(const std::array<int, 2>& ends) : reader(ends[0]), writer(ends[1]) {}

    static std::array<int, 2> Ends() {
        std::array<int, 2> ends{};
        CheckCall(::pipe2(ends.data(), O_CLOEXEC), "pipe");
        return ends;
    }
};

#endif

// Tells the compiler's by-products from the user's files by stamps that are taken before and after
// it ran. The dictionary needs none: its name is only given away when no file goes by it. After a
// failed compile nothing is deleted; that is wanted, and so is the order of deletion.

#include "driver/ByProducts.h"

#include <unistd.h>

#include <utility>

namespace {

bool AreSame(const struct stat& a, const struct stat& b) {
    // Device and inode tell a replaced file, size and time one that was written.
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino && a.st_size == b.st_size &&
           a.st_mtim.tv_sec == b.st_mtim.tv_sec && a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

}  // namespace

CKTFileStamp::CKTFileStamp(const std::string& name)
    : m_bThere(::lstat(name.c_str(), &m_Own) == 0),
      m_bLeads(::stat(name.c_str(), &m_Target) == 0) {}

bool CKTFileStamp::IsStill(const CKTFileStamp& other) const {
    return m_bThere && other.m_bThere && m_bLeads == other.m_bLeads &&
           AreSame(m_Own, other.m_Own) && (!m_bLeads || AreSame(m_Target, other.m_Target));
}

CKTByProducts::CKTByProducts(const std::string& dictionary, std::string temporaryCopy)
    : m_sTemporaryCopy(std::move(temporaryCopy)),
      m_sStem(dictionary.substr(0, dictionary.rfind('.') + 1)),
      m_Debugger(m_sStem + "idy"),
      m_Code(m_sStem + "int") {}

void CKTByProducts::Delete() const {
    if (!m_sTemporaryCopy.empty()) {
        ::unlink(m_sTemporaryCopy.c_str());
    }
    DeleteWritten(m_sStem + "idy", m_Debugger);
    ::unlink((m_sStem + "xml").c_str());
    DeleteWritten(m_sStem + "int", m_Code);
}

void CKTByProducts::DeleteWritten(const std::string& name, const CKTFileStamp& before) {
    // A file that was not there before counts as written.
    if (!CKTFileStamp(name).IsStill(before)) {
        ::unlink(name.c_str());
    }
}

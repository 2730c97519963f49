#ifndef DORVEX_DRIVER_BYPRODUCTS_H
#define DORVEX_DRIVER_BYPRODUCTS_H

#include <sys/stat.h>

#include <string>

/// What file a name stands for and when it was last written. A link is told apart from what it
/// leads to, so that writing through it shows.
class CKTFileStamp {
public:
    /// Takes the stamp of the file `name` as it is now; a file that is not there has one too.
    explicit CKTFileStamp(const std::string& name);

    /// Says whether the file was there both times and nobody wrote or replaced it in between.
    [[nodiscard]] bool IsStill(const CKTFileStamp& other) const;

private:
    struct stat m_Own {};
    struct stat m_Target {};
    bool m_bThere;
    bool m_bLeads;
};

/// The files that a compilation leaves behind: the temporary copy, the dictionary, and the
/// compiler's debugger and code files beside it. Made before the compiler starts.
class CKTByProducts {
public:
    /// `dictionary` is the file that the compiler is going to write. `temporaryCopy` is empty when
    /// the source itself is compiled.
    CKTByProducts(const std::string& dictionary, std::string temporaryCopy);

    /// Deletes them. A file that cannot be deleted stays, and so does a debugger or code file of
    /// the user's that the compiler left as it was. Reports nothing.
    void Delete() const;

private:
    static void DeleteWritten(const std::string& name, const CKTFileStamp& before);

    std::string m_sTemporaryCopy;
    std::string m_sStem;  ///< the dictionary's name up to its extension
    CKTFileStamp m_Debugger;
    CKTFileStamp m_Code;
};

#endif

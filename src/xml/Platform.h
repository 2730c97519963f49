#ifndef DORVEX_XML_PLATFORM_H
#define DORVEX_XML_PLATFORM_H

/// Keeps the parser library up while it lives; such objects may overlap. A failure to start or stop
/// the library is reported on standard error and has no other effect.
class CKTPlatform {
public:
    CKTPlatform();
    ~CKTPlatform();
    CKTPlatform(const CKTPlatform&) = delete;
    CKTPlatform& operator=(const CKTPlatform&) = delete;

    /// Starts the library without an end, for a caller that keeps no such object. May be called any
    /// number of times.
    static void Start();
};

#endif

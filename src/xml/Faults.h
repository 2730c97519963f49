#ifndef DORVEX_XML_FAULTS_H
#define DORVEX_XML_FAULTS_H

#include <string>

/// Says what the exception is that is being handled, one of the parser library's or any other. To
/// be called in a catch block; reports nothing.
std::string DescribeFault();

#endif

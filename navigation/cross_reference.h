// The pieces of the cross reference that stand apart from its run (QuickFind::crossReference).
#pragma once

#include <cstdint>
#include <string>

struct MessageGroup;

// "Cross reference" with the menu text "&Cross reference".
const MessageGroup& crossReferenceGroup();

// The header message: the project name taken from the main window's title
// (what follows its first '-'), the name, the date, the time and the count.
std::string crossReferenceHeader(const std::string& mainWindowTitle, const std::string& name, const std::string& date,
                                 const std::string& time, int32_t count);

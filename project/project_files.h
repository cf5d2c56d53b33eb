// The files a project keeps beside its project file, named by a suffix after its full name.
#pragma once

#include <string>

inline std::string taskFilePath(const std::string& projectFile) { return projectFile + ".tsk"; }
inline std::string notificationFilePath(const std::string& projectFile) { return projectFile + ".tsk.txt"; }
inline std::string flashMarkerPath(const std::string& projectFile) { return projectFile + ".fltme"; }

// Where the searches look: the project directory, the directory options of the
// node that holds the editor's file, and the ';' lists they are written in.
#pragma once

#include <string>
#include <vector>

class Host;

// Splits at ';'; an empty entry ends the list, so "a;;b" gives only "a".
std::vector<std::string> splitSearchList(const std::string& list);

// A path as typed in a project or a source file, with either separator, in the
// platform's form.
std::string nativePath(const std::string& path);

struct SearchPlaces {
  bool projectOpen = false;
  // The project file's directory without a trailing separator, else the current directory.
  std::string projectDirectory;
  std::string includePath;  // the node's include path option; empty without a project
  std::string sourcePath;   // the node's source path option
};

// The places for a search started from an editor on editorFile (may be empty):
// the options come from the node holding that file, else the project's top node.
SearchPlaces searchPlaces(Host& host, const std::string& editorFile);

// A directory entry of a search list: relative entries are taken from the
// project directory, which is the current directory of the IDE.
std::string searchDirectory(const SearchPlaces& places, const std::string& entry);

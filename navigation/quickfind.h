// QuickFind: where a name is defined in the project's tree, as a function, a
// method or a class, and where it is used (the cross reference), without any
// browser database: files are read whole and filtered line by line.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/menu_model.h"
#include "foundation/tableau.h"
#include "navigation/hit_list.h"
#include "navigation/quick_resu.h"
#include "navigation/quickfind_settings.h"
#include "navigation/search_history.h"

class Host;
struct SearchPlaces;

// The first hit of a function or class search.
struct QuickHit {
  std::string file;
  int32_t line = 0;
  std::string text;  // the matching line
};

class QuickFind {
 public:
  // Reads the settings; nothing is written back until writeSettings.
  QuickFind() : settings_(QuickFindSettings::read()) {}

  QuickFindSettings& settings() { return settings_; }
  // Called when the add-on shuts down.
  void writeSettings() const { settings_.write(); }
  SearchHistory& history() { return history_; }

  // The commands. editorFile is the file of the editor the command came from
  // (empty for none): its project node gives the source and include paths.
  // Each shows its progress on the status line and, when nothing is found, its
  // failure text with a beep, and returns false.
  bool findFunction(Host& host, const std::string& name, const std::string& editorFile, QuickHit* hit);
  bool findClass(Host& host, const std::string& name, const std::string& editorFile, QuickHit* hit);
  // Every hit goes to methodResults(), in the order found.
  bool findMethods(Host& host, const std::string& name, const std::string& editorFile);
  // Every hit goes to crossResults() and to the message window under a header.
  bool crossReference(Host& host, const std::string& name);

  const Tableau<QuickResu>& methodResults() const { return methodResults_; }
  // Built from the last cross reference's hits when first asked for.
  const Tableau<QuickResu>& crossResults() const;

  // The QuickFind popup of the editor's title bar, with the shortcuts' texts.
  MenuModel menu() const;
  // The popup of the method results, item i being 800 + i.
  MenuModel methodResultsMenu() const;

 private:
  // Gets a candidate line of a file; false stops the whole walk.
  using LineVisitor = std::function<bool(const std::string& file, std::string_view line, int32_t number)>;

  // Walks every directory of dirs with every mask of masks, visiting the lines
  // of the matching files that contain name. False when the visitor stopped it.
  bool walk(Host& host, const std::string& name, const std::vector<std::string>& dirs,
            const std::vector<std::string>& masks, const LineVisitor& visit);
  bool firstHit(Host& host, const std::string& name, const std::vector<std::string>& dirs,
                const std::vector<std::string>& masks, bool (*matches)(std::string_view, std::string_view),
                QuickHit* hit);
  std::vector<std::string> functionMasks() const;

  QuickFindSettings settings_;
  SearchHistory history_;
  Tableau<QuickResu> methodResults_;
  HitList crossHits_;
  mutable Tableau<QuickResu> crossResults_;
  mutable bool crossResultsBuilt_ = true;
};

// The cross reference: every use of a name inside a body, into the message window.
#include "navigation/cross_reference.h"

#include "foundation/os.h"
#include "project/host.h"
#include "navigation/line_match.h"
#include "navigation/quickfind.h"
#include "navigation/search_places.h"

const MessageGroup& crossReferenceGroup() {
  static const MessageGroup group{"Cross reference", "&Cross reference"};
  return group;
}

std::string crossReferenceHeader(const std::string& mainWindowTitle, const std::string& name, const std::string& date,
                                 const std::string& time, int32_t count) {
  std::string header;
  size_t dash = mainWindowTitle.find('-');
  if (dash != std::string::npos) {
    size_t start = mainWindowTitle.find_first_not_of(' ', dash + 1);
    if (start != std::string::npos) header = mainWindowTitle.substr(start);
  }
  header += " : cross reference \"" + name + "\" " + " (" + date + " , " + time + ") : " + std::to_string(count) +
            " found" + (count > 1 ? "s" : "");
  return header;
}

bool QuickFind::crossReference(Host& host, const std::string& name) {
  host.setBusy(true);
  host.showStatus("Searching " + name + " ...");
  crossHits_.clear();
  crossResultsBuilt_ = false;
  // Every walk is rooted at the project directory: the source path is never reached.
  std::vector<std::string> dirs{searchPlaces(host, "").projectDirectory};
  walk(host, name, dirs, functionMasks(), [&](const std::string& file, std::string_view line, int32_t number) {
    if (matchesReferenceLine(line, name)) crossHits_.add(file, number, line);
    return true;
  });
  host.setBusy(false);
  if (crossHits_.size() == 0) {
    host.beep(220, 500);
    host.showStatus("Sorry, nothing found !");
    host.beep(220, 500);
    host.showStatus("Sorry, cannot cross reference ...");
    return false;
  }
  SystemTime now = os().localTime();
  std::string header = crossReferenceHeader(host.mainWindowTitle(), name,
                                            os().formatDate(now, DateForm::Short, LocaleChoice::System),
                                            os().formatTime(now, LocaleChoice::System),
                                            static_cast<int32_t>(crossHits_.size()));
  const MessageGroup& group = crossReferenceGroup();
  Host::MessageHandle parent = host.addMessage(group, 0, header);
  std::string text;
  for (size_t i = 0; i < crossHits_.size(); ++i) {
    text.assign(crossHits_.text(i));
    host.addLocatedMessage(group, parent, text, crossHits_.file(i), crossHits_.line(i), 1, 5);
  }
  host.beep(220, 500);
  host.showStatus("References found, see Message Window");
  return true;
}

const Tableau<QuickResu>& QuickFind::crossResults() const {
  if (!crossResultsBuilt_) {
    crossHits_.copyTo(&crossResults_);
    crossResultsBuilt_ = true;
  }
  return crossResults_;
}

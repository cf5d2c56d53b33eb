// Which of the project's deliverable files differ from their delivered copies.
#pragma once

#include <cstdint>
#include <string>

#include "delivery/delivery_group.h"
#include "foundation/tableau.h"

// One file to deliver.
class Livrage : public Basic {
 public:
  String source;                     // full path
  const OneDelRep* group = nullptr;  // not owned
  String directory;                  // the group's directory, taken from the project directory when relative
  uint32_t size = 0;                 // filled just before copying

  operator char*() override { return source; }
};

// True when the source exists and its copy in directory is missing, of another
// size, or of other contents; dates play no part. A source that cannot be read
// is never delivered; a copy that cannot be read is delivered again.
bool needsDelivery(const std::string& source, const std::string& directory);

// A group's delivery directory, taken from the project directory when relative,
// is there. An empty one never is: a group not yet given a directory must not
// deliver into the project's own.
bool deliveryDirectoryExists(const std::string& projectDirectory, const std::string& directory);

// Rebuilds the groups and fills deliveries with the files of active groups that
// need delivery. False (deliveries empty) after showing "Directory ... does not
// exist !" for the first group whose directory is missing.
bool selectDeliveries(Tableau<OneDelRep>& groups, const ProjectNode* root, const std::string& projectDirectory,
                      Tableau<Livrage>* deliveries);

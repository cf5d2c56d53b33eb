// The add-on's project clients: how it hears that a project opens, closes and
// is saved, and where it keeps the options that belong to the open project.
#pragma once

#include "win32/ide_access_win32.h"
#include "win32/ide_api_win32.h"
#include "project/project_options.h"

class ProjectClientImpl : public IUnknownImp<IProjectClient> {
 public:
  ProjectClientImpl() : IUnknownImp(ide_iid::kProjectClient) {}
  void __stdcall ProjectOpened(IIdeString* projectFile) override;
  void __stdcall ProjectClosed() override;
  // Keeps the bar's project-file items in step with node names.
  void __stdcall NodeChanged(IdeHandle node) override;
};

class ProjectClient2Impl : public IUnknownImp<IProjectSaveClient> {
 public:
  ProjectClient2Impl() : IUnknownImp(ide_iid::kProjectSaveClient) {}
  // Writes every per-project option into the project.
  void __stdcall ProjectSaving() override;
};

// Attaches both clients to the IDE's project and project-save services and
// takes them back; holds the services in between.
class ProjectTestA {
 public:
  ProjectTestA() = default;
  ProjectTestA(const ProjectTestA&) = delete;
  ProjectTestA& operator=(const ProjectTestA&) = delete;
  virtual ~ProjectTestA();
  virtual void registerClients();
  virtual void unregisterClients();

 private:
  IdeRef<IIdeProject> project_;
  IdeRef<IIdeProjectSave> projectSave_;
  IdeRef<ProjectClientImpl> client_;
  IdeRef<ProjectClient2Impl> saveClient_;
};

// The options of the open project, as read when it opened; null when none is open.
ProjectOptions* openProjectOptions();

// Writes the open project's options into it at once (the "Save options" of the pages).
void saveProjectOptions();

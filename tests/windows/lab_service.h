// The lab's Windows service in the real service manager.
#pragma once

#include <windows.h>

#include "tests/windows/story.h"

// Takes a service out of the service manager that an earlier run has left there.
void RemoveLeftService();

// The service for the life of a test.
class LabService {
 public:
  // Installs it, stopped, from the story's folder.
  explicit LabService(Story& story);
  LabService(const LabService&) = delete;
  LabService& operator=(const LabService&) = delete;
  // Stops it and takes it out again.
  ~LabService();

  // Starts it and waits until it says of itself that it is in this state.
  bool Enter(DWORD state);
  // What the service manager says.
  DWORD State() const;
  // From now on the batch files do what they say.
  void LetBatchFilesWork() const;

 private:
  Story& story_;
  SC_HANDLE manager_;
  SC_HANDLE service_ = nullptr;
};

// While it lives, the agent is told that it runs on a system before Windows Vista, where the
// service is looked after from the start. Wine does so for one program by its name; Windows itself
// ignores the setting, and every system of today counts as such a one.
class EarlierWindows {
 public:
  EarlierWindows();
  EarlierWindows(const EarlierWindows&) = delete;
  EarlierWindows& operator=(const EarlierWindows&) = delete;
  ~EarlierWindows();
};

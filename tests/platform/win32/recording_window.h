// A top-level window on a thread of its own that keeps what it is sent.
#pragma once

#include <windows.h>

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "tests/platform/contract_machine.h"

class RecordingWindow {
 public:
  // "" as class gives it a class of its own.
  RecordingWindow(const std::string& class_name, const std::string& title);
  RecordingWindow(const RecordingWindow&) = delete;
  RecordingWindow& operator=(const RecordingWindow&) = delete;
  ~RecordingWindow();

  HWND handle() const { return window_; }

  // WM_CLOSE and all of WM_USER and above, after what is posted has come in.
  std::vector<ReceivedMessage> Received(std::uint32_t from);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  void Run(const std::string& class_name, const std::string& title, HANDLE ready);
  bool Keep(UINT message, WPARAM wparam, LPARAM lparam);

  std::atomic<HWND> window_ = nullptr;
  HANDLE came_in_;
  std::mutex mutex_;
  std::vector<ReceivedMessage> received_;
  std::thread thread_;
};

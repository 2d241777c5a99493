#pragma once

#include "ipconfig_hrdip_export.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <string>

// The status that a reader or writer reports to a display on another thread:
// a text, a progress from 0.0 to 100.0 and a busy flag. Each assignment of
// the text or the progress takes the lock, so a reader of the status sees
// whole values; the busy flag is atomic and needs none.
class IPCONFIG_HRDIP_EXPORT HDGUIStatus {
public:
  // Called under the lock after each assignment of text or progress, with
  // both values as they then stand.
  using Listener = std::function<void(const std::string& text, double progress)>;

  void setStatusText(const std::string& text);
  void setProgress(double progress);
  void setBusy(bool busy) { busyFlag = busy; }

  std::string getStatusText() const;
  double getProgress() const;
  bool isBusy() const { return busyFlag; }

  void setListener(Listener listener);

private:
  void notify_() const;

  mutable std::mutex mutex;
  std::string statusText;
  double progressValue = 0.0;
  std::atomic<bool> busyFlag{false};
  Listener listener;
};

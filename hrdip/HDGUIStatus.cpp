#include "HDGUIStatus.h"

#include <utility>

void HDGUIStatus::setStatusText(const std::string& text)
{
  const std::lock_guard<std::mutex> lock(mutex);
  statusText = text;
  notify_();
}

void HDGUIStatus::setProgress(double progress)
{
  const std::lock_guard<std::mutex> lock(mutex);
  progressValue = progress;
  notify_();
}

std::string HDGUIStatus::getStatusText() const
{
  const std::lock_guard<std::mutex> lock(mutex);
  return statusText;
}

double HDGUIStatus::getProgress() const
{
  const std::lock_guard<std::mutex> lock(mutex);
  return progressValue;
}

void HDGUIStatus::setListener(Listener newListener)
{
  const std::lock_guard<std::mutex> lock(mutex);
  listener = std::move(newListener);
}

void HDGUIStatus::notify_() const
{
  if (listener)
    listener(statusText, progressValue);
}

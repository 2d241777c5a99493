#include "ComMsgLog.h"

#include <deque>
#include <mutex>

namespace {

struct LogState {
  std::mutex mutex;
  std::deque<ComMsgLog::Record> records;
  std::size_t capacity = 100000;
};

LogState& state()
{
  static LogState instance;
  return instance;
}

void trimTo(LogState& log, std::size_t maxRecords)
{
  while (log.records.size() > maxRecords)
    log.records.pop_front();
}

}  // namespace

void ComMsgLog::add(const ComMsgMgrInstance& message, bool thrown)
{
  LogState& log = state();
  std::lock_guard<std::mutex> lock(log.mutex);
  log.records.push_back(Record{message, thrown});
  trimTo(log, log.capacity);
}

std::vector<ComMsgLog::Record> ComMsgLog::records()
{
  LogState& log = state();
  std::lock_guard<std::mutex> lock(log.mutex);
  return {log.records.begin(), log.records.end()};
}

void ComMsgLog::clear()
{
  LogState& log = state();
  std::lock_guard<std::mutex> lock(log.mutex);
  log.records.clear();
}

std::size_t ComMsgLog::capacity()
{
  LogState& log = state();
  std::lock_guard<std::mutex> lock(log.mutex);
  return log.capacity;
}

void ComMsgLog::setCapacity(std::size_t maxRecords)
{
  LogState& log = state();
  std::lock_guard<std::mutex> lock(log.mutex);
  log.capacity = maxRecords;
  trimTo(log, maxRecords);
}

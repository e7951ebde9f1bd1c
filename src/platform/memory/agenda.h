// Things to do at given times, in the order of their due times and, for one time, of their making.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace platform::memory {

using EventId = std::uint64_t;

class Agenda {
 public:
  struct Item {
    std::uint64_t due = 0;
    std::uint32_t period = 0;  // 0: once
    std::string who;
    std::function<void()> run;
    EventId id = 0;  // given by Add
  };

  EventId Add(Item item);
  // Safe for an item that is over, and from inside the item itself.
  void Remove(EventId id);
  void Clear();

  std::optional<std::uint64_t> NextDue() const;

  // Takes the earliest item that is due at `now`, nothing when none is. A repeating item is put off
  // first to its next due time after `now`: what came due several times is taken once.
  std::shared_ptr<const Item> TakeDue(std::uint64_t now);

  bool empty() const { return items_.empty(); }
  // "<due> <who>" of each item, in order.
  std::vector<std::string> Pending() const;

 private:
  using Place = std::pair<std::uint64_t, EventId>;

  EventId next_id_ = 1;
  std::map<EventId, std::shared_ptr<Item>> items_;
  std::set<Place> order_;
};

}  // namespace platform::memory

#include "platform/memory/agenda.h"

namespace platform::memory {

EventId Agenda::Add(Item item) {
  const EventId id = next_id_++;
  item.id = id;
  order_.emplace(item.due, id);
  items_.emplace(id, std::make_shared<Item>(std::move(item)));
  return id;
}

void Agenda::Remove(EventId id) {
  const auto found = items_.find(id);
  if (found == items_.end()) return;
  order_.erase({found->second->due, id});
  items_.erase(found);
}

void Agenda::Clear() {
  order_.clear();
  items_.clear();
}

std::optional<std::uint64_t> Agenda::NextDue() const {
  if (order_.empty()) return std::nullopt;
  return order_.begin()->first;
}

std::shared_ptr<const Agenda::Item> Agenda::TakeDue(std::uint64_t now) {
  if (order_.empty() || order_.begin()->first > now) return nullptr;
  const auto found = items_.find(order_.begin()->second);
  std::shared_ptr<Item> item = found->second;
  if (item->period == 0) {
    order_.erase(order_.begin());
    items_.erase(found);
    return item;
  }
  auto place = order_.extract(order_.begin());
  item->due += ((now - item->due) / item->period + 1) * item->period;
  place.value().first = item->due;
  order_.insert(std::move(place));
  return item;
}

std::vector<std::string> Agenda::Pending() const {
  std::vector<std::string> lines;
  for (const Place& place : order_) {
    lines.push_back(std::to_string(place.first) + " " + items_.find(place.second)->second->who);
  }
  return lines;
}

}  // namespace platform::memory

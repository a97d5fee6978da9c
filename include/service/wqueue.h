#pragma once

#include <condition_variable>
#include <cstddef>
#include <list>
#include <mutex>

// A queue shared by the thread that accepts connections and the workers that serve them.
template <typename T>
class wqueue {
 public:
  void add(T item) {
    {
      std::lock_guard<std::mutex> lock(mutex);
      items.push_back(std::move(item));
    }
    condition.notify_one();
  }

  // Takes the oldest item, waiting while there is none.
  T remove() {
    std::unique_lock<std::mutex> lock(mutex);
    condition.wait(lock, [this] { return !items.empty(); });
    T item = std::move(items.front());
    items.pop_front();
    return item;
  }

  std::size_t size() {
    std::lock_guard<std::mutex> lock(mutex);
    return items.size();
  }

 private:
  std::list<T> items;
  std::mutex mutex;
  std::condition_variable condition;
};

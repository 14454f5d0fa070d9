#pragma once

#include <cstddef>
#include <type_traits>

namespace sonavue {

/// A growing array of trivially copyable values. If it runs out of memory, `has_failed` returns
/// true until the array is cleared.
template <class T>
class GrownArray {
  static_assert(std::is_trivially_copyable_v<T>);

 public:
  GrownArray() = default;
  ~GrownArray() { __builtin_free(values_); }
  GrownArray(const GrownArray&) = delete;
  GrownArray& operator=(const GrownArray&) = delete;

  std::size_t count() const { return count_; }
  bool has_failed() const { return failed_; }
  T* begin() { return values_; }
  T* end() { return values_ + count_; }
  const T* begin() const { return values_; }
  const T* end() const { return values_ + count_; }
  const T& operator[](std::size_t index) const { return values_[index]; }

  void add(T value) {
    reserve(count_ + 1);
    if (count_ == room_) return;
    values_[count_++] = value;
  }
  /// Sets the count. New values are uninitialised.
  void resize(std::size_t count) {
    reserve(count);
    if (count <= room_) count_ = count;
  }
  /// Makes room for so many values.
  void reserve(std::size_t count) {
    if (count > room_) make_room(count);
  }
  /// Discards the values but keeps the allocated memory.
  void clear() {
    count_ = 0;
    failed_ = false;
  }

 private:
  static constexpr std::size_t kFirstRoom = 64;

  void make_room(std::size_t wanted) {
    std::size_t room = room_ ? room_ : kFirstRoom;
    while (room < wanted)
      room *= 2;
    if (void* more = __builtin_realloc(values_, room * sizeof(T))) {
      values_ = static_cast<T*>(more);
      room_ = room;
    } else {
      failed_ = true;
    }
  }

  T* values_ = nullptr;
  std::size_t count_ = 0;
  std::size_t room_ = 0;
  bool failed_ = false;
};

}  // namespace sonavue

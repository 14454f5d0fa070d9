#include "host/browser/access/access.h"

#include <sys/mman.h>
#include <sys/random.h>
#include <sys/stat.h>

#include <array>
#include <cstring>

namespace host::browser {
namespace {

using Key = std::array<char, Access::kKeyLength>;

bool make_key(Key& key) {
  std::array<unsigned char, Access::kKeyLength / 2> random{};
  if (getrandom(random.data(), random.size(), 0) != static_cast<ssize_t>(random.size()))
    return false;
  constexpr char kDigits[] = "0123456789abcdef";
  for (std::size_t i = 0; i < random.size(); ++i) {
    key[2 * i] = kDigits[random[i] >> 4];
    key[2 * i + 1] = kDigits[random[i] & 15];
  }
  return true;
}

/// Takes the same time wherever the texts differ.
bool is_same(const Key& key, std::string_view text) {
  if (text.size() != key.size()) return false;
  unsigned difference = 0;
  for (std::size_t i = 0; i < key.size(); ++i)
    difference |= static_cast<unsigned char>(key[i]) ^ static_cast<unsigned char>(text[i]);
  return difference == 0;
}

std::string text_of(const Key& key) {
  return {key.data(), key.size()};
}

}  // namespace

struct Access::State {
  Key token;
  Key secret;
  bool has_token;
  bool has_secret;
};

Descriptor Access::make() {
  State state{};
  state.has_token = make_key(state.token);
  if (!state.has_token) return {};
  Descriptor memory(memfd_create("browser", MFD_CLOEXEC));
  if (write(memory.get(), &state, sizeof state) != static_cast<ssize_t>(sizeof state)) return {};
  return memory;
}

std::unique_ptr<Access> Access::open(int descriptor) {
  struct stat status {};
  if (fstat(descriptor, &status) != 0 || status.st_size != static_cast<off_t>(sizeof(State)))
    return nullptr;
  void* const memory =
      mmap(nullptr, sizeof(State), PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
  if (memory == MAP_FAILED) return nullptr;
  return std::unique_ptr<Access>(new Access(static_cast<State*>(memory)));
}

Access::~Access() {
  munmap(state_, sizeof(State));
}

std::string Access::token() const {
  return state_->has_token ? text_of(state_->token) : std::string();
}

std::optional<std::string> Access::admit(std::string_view key) {
  if (state_->has_token && is_same(state_->token, key)) {
    if (!make_key(state_->secret)) return std::nullopt;
    state_->has_token = false;
    state_->has_secret = true;
    return text_of(state_->secret);
  }
  if (state_->has_secret && is_same(state_->secret, key)) return text_of(state_->secret);
  return std::nullopt;
}

bool Access::renew() {
  Key key{};
  if (!make_key(key)) return false;
  state_->token = key;
  state_->has_token = true;
  return true;
}

}  // namespace host::browser

#pragma once

#include "objc/fixed_string.h"
#include "objc/object.h"

namespace objc {

template <class Signature>
class Block;

/// `Encode<T>::text` is the runtime's type code of `T`. Methods deduce it, so none is written out.
/// The platform's structures specialise it next to their definition.
template <class T>
struct Encode;

// clang-format off
template <> struct Encode<void> { static constexpr FixedString text = "v"; };
template <> struct Encode<bool> { static constexpr FixedString text = "B"; };
template <> struct Encode<signed char> { static constexpr FixedString text = "c"; };
template <> struct Encode<char> { static constexpr FixedString text = "c"; };
template <> struct Encode<unsigned char> { static constexpr FixedString text = "C"; };
template <> struct Encode<short> { static constexpr FixedString text = "s"; };
template <> struct Encode<unsigned short> { static constexpr FixedString text = "S"; };
template <> struct Encode<int> { static constexpr FixedString text = "i"; };
template <> struct Encode<unsigned> { static constexpr FixedString text = "I"; };
template <> struct Encode<long> { static constexpr FixedString text = "q"; };
template <> struct Encode<unsigned long> { static constexpr FixedString text = "Q"; };
template <> struct Encode<long long> { static constexpr FixedString text = "q"; };
template <> struct Encode<unsigned long long> { static constexpr FixedString text = "Q"; };
template <> struct Encode<float> { static constexpr FixedString text = "f"; };
template <> struct Encode<double> { static constexpr FixedString text = "d"; };
template <> struct Encode<const char*> { static constexpr FixedString text = "*"; };
template <> struct Encode<char*> { static constexpr FixedString text = "*"; };
template <> struct Encode<Id> { static constexpr FixedString text = "@"; };
template <> struct Encode<Class> { static constexpr FixedString text = "#"; };
template <> struct Encode<Sel> { static constexpr FixedString text = ":"; };
// clang-format on

template <Handle T>
struct Encode<T> {
  static constexpr FixedString text = "@";
};

template <class T>
requires std::is_enum_v<T>
struct Encode<T> : Encode<std::underlying_type_t<T>> {
};

template <class T>
struct Encode<T*> {
  static constexpr FixedString text = "^v";
};

template <class Signature>
struct Encode<Block<Signature>> {
  static constexpr FixedString text = "@?";
};

/// The encoding of a method: result, receiver, selector, then the arguments.
template <class Result, class... Arguments>
struct MethodEncoding {
  static constexpr auto text = ((Encode<Result>::text + FixedString("@:")) + ... +
                                Encode<std::remove_cvref_t<Arguments>>::text);
};

/// Whether two encodings describe the same call. Offsets, qualifiers and structure names are
/// ignored. The one-byte booleans of the two runtimes count as one type, and so do all pointers.
bool same_encoding(const char* left, const char* right);

}  // namespace objc

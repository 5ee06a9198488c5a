// Paths of shares have a prefix of their own, in place of their two backslashes.
#include "platform/LongPath.h"

#include <string_view>

namespace tessera {
namespace {

constexpr std::wstring_view Prefix = L"\\\\?\\";
constexpr std::wstring_view SharePrefix = L"\\\\?\\UNC\\";
constexpr std::wstring_view Share = L"\\\\";

}  // namespace

bool HasLongPrefix(const std::wstring& path) { return path.starts_with(Prefix); }

std::wstring WithLongPrefix(const std::wstring& path) {
  if (path.starts_with(Share)) return SharePrefix.data() + path.substr(Share.size());
  return Prefix.data() + path;
}

std::wstring WithoutLongPrefix(const std::wstring& path) {
  if (path.starts_with(SharePrefix)) return Share.data() + path.substr(SharePrefix.size());
  return HasLongPrefix(path) ? path.substr(Prefix.size()) : path;
}

}  // namespace tessera

#include <exception>
#include <string>

#include "discovery/linux/PropertyListForms.h"

namespace launcher {
namespace {

/// Room for a listing of some 14,000 attached images.
constexpr std::size_t kMostBytes = 16U << 20U;

/// Room for a listing of 10,000 attached images with 40 values and keys each, and their texts.
constexpr std::size_t kMostMemory = 32U << 20U;

/// Roughly what one value or key takes without its text.
constexpr std::size_t kValueSize = 64;

constexpr int kDeepestNesting = 512;

PropertyList read(std::string_view bytes) {
  if (bytes.empty()) throw UnreadableList("there is nothing");
  if (bytes.size() > kMostBytes) throw UnreadableList("more than 16 MB");
  return isBinaryPropertyList(bytes) ? readBinaryPropertyList(bytes) : readXmlPropertyList(bytes);
}

}  // namespace

std::size_t valueMemory(std::size_t textSize) { return kValueSize + textSize; }

void checkMemory(std::size_t memory) {
  if (memory > kMostMemory) throw UnreadableList("too many values");
}

void checkDepth(int depth) {
  if (depth > kDeepestNesting) throw UnreadableList("nested too deeply");
}

PropertyListReading readPropertyList(std::string_view bytes) try {
  return {read(bytes), {}};
} catch (const std::exception& error) {
  return {std::nullopt, error.what()};
}

}  // namespace launcher

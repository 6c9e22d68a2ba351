#pragma once

namespace tarvex {

struct Editor;

// Named operations of the Editor that do nothing, and on which nothing depends. Select All calls the two that remove.
inline void AddHugeBlankStringJF(Editor& /*editor*/) {}
inline void RemoveHugeBlankStringJF(Editor& /*editor*/) {}
inline void AddHugeBlankStringMF(Editor& /*editor*/) {}
inline void RemoveHugeBlankStringMF(Editor& /*editor*/) {}

} // namespace tarvex

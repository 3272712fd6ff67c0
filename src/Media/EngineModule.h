#pragma once

namespace media {

class Engine;

/// The one symbol of the engine's module: gives the engine, or null where `version` is not the
/// version that the module was built as part of.
using EngineEntry = const Engine* (*)(const char* version);
inline constexpr const char* kEngineEntryName = "briskletMediaEngine";

} // namespace media

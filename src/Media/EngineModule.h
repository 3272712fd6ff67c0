#pragma once

namespace media {

class Engine;

/// The one symbol of the engine's module: gives the engine, or null where `interface`, a
/// fingerprint of the classes that cross over, is not that of the module.
using EngineEntry = const Engine* (*)(const char* interface);
inline constexpr const char* kEngineEntryName = "briskletMediaEngine";

} // namespace media

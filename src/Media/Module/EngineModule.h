#pragma once

namespace media {

class Engine;

/// The symbols of the engine's module: a fingerprint of the classes that cross over, as a string
/// that ends with 0, to be compared before anything else; and a function that gives the engine.
inline constexpr const char* kEngineInterfaceName = "briskletMediaInterface";
inline constexpr const char* kEngineEntryName = "briskletMediaEngine";
using EngineEntry = const Engine* (*)();

} // namespace media

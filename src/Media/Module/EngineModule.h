#pragma once

namespace media {

class Engine;

/// The symbols of an engine's module: a fingerprint of the classes that cross over, as a string
/// that ends with 0, to be compared before anything else; and a function that gives the engine.
inline constexpr const char* kEngineInterfaceName = "briskletMediaInterface";
inline constexpr const char* kEngineEntryName = "briskletMediaEngine";
using EngineEntry = const Engine* (*)();

/// Of the engine that decodes itself: says what it was built of and serves as the process that
/// helpers are forked from, over the descriptor of a channel, until that ends.
inline constexpr const char* kServerEntryName = "briskletMediaServe";
using ServerEntry = void (*)(int);

} // namespace media

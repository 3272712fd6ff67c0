#pragma once

namespace media::process {

/// Has libnuma, where it is loaded, read now which processors belong to which node of memory, and
/// keep it: libx265 asks when it starts its threads, does without any if it is not told, and then
/// codes the same pictures in other bytes. To be called before the process can open no more files,
/// while it has one thread; those that are forked from it know it too.
void learnNumaNodes() noexcept;

} // namespace media::process

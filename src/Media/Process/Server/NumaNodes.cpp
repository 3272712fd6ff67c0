#include "Media/Process/Server/NumaNodes.h"

#include <dlfcn.h>

namespace media::process {

namespace {

/// The library, if another has loaded it; null otherwise. Has functions of numa(3), whose header
/// need not be there to build with.
class Numa {
public:
    Numa() noexcept : m_library(::dlopen("libnuma.so.1", RTLD_LAZY | RTLD_NOLOAD)) {}

    Numa(const Numa&) = delete;
    Numa& operator=(const Numa&) = delete;

    ~Numa() {
        if (m_library)
            ::dlclose(m_library);
    }

    /// Null if the library or the function is not there.
    template<typename Function>
    [[nodiscard]] Function* find(const char* name) const noexcept {
        return m_library ? reinterpret_cast<Function*>(::dlsym(m_library, name)) : nullptr;
    }

private:
    void* m_library;
};

} // namespace

void learnNumaNodes() noexcept {
    struct bitmask;
    const Numa numa;
    auto* const isThere = numa.find<int()>("numa_available");
    auto* const lastNode = numa.find<int()>("numa_max_node");
    auto* const makeMask = numa.find<bitmask*()>("numa_allocate_cpumask");
    auto* const freeMask = numa.find<void(bitmask*)>("numa_bitmask_free");
    auto* const learn = numa.find<int(int, bitmask*)>("numa_node_to_cpus");
    if (!isThere || !lastNode || !makeMask || !freeMask || !learn || isThere() < 0)
        return;
    bitmask* const mask = makeMask();
    if (mask == nullptr)
        return;
    for (int node = 0; node <= lastNode(); ++node)
        learn(node, mask);
    freeMask(mask);
}

} // namespace media::process

// To be preloaded: whoever asks how many processors there are is told BENCH_PROCESSORS. The kernel
// still runs all threads on those that there are.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <sched.h>
#include <stdlib.h>
#include <string.h>
#include <sys/sysinfo.h>
#include <unistd.h>

static int count(void) {
    const char* text = getenv("BENCH_PROCESSORS");
    const int number = text ? atoi(text) : 0;
    return number > 0 ? number : 1;
}

int get_nprocs(void) {
    return count();
}

int get_nprocs_conf(void) {
    return count();
}

long sysconf(int name) {
    if (name == _SC_NPROCESSORS_ONLN || name == _SC_NPROCESSORS_CONF)
        return count();
    static long (*real)(int);
    if (!real)
        real = (long (*)(int))dlsym(RTLD_NEXT, "sysconf");
    return real(name);
}

int sched_getaffinity(pid_t process, size_t size, cpu_set_t* set) {
    (void)process;
    memset(set, 0, size);
    for (int i = 0; i < count(); ++i)
        CPU_SET_S((size_t)i, size, set);
    return 0;
}

// libnuma's, which libx265 asks for the processors of each node; all are those of the first.
struct bitmask {
    unsigned long size;
    unsigned long* maskp;
};

int numa_node_to_cpus(int node, struct bitmask* mask) {
    const unsigned long bits = 8 * sizeof(unsigned long);
    memset(mask->maskp, 0, (mask->size + bits - 1) / bits * sizeof(unsigned long));
    for (unsigned long i = 0; node == 0 && i < (unsigned long)count() && i < mask->size; ++i)
        mask->maskp[i / bits] |= 1UL << i % bits;
    return 0;
}

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

// Without it libx265 counts processors itself, by the nodes of the machine.
int numa_available(void) {
    return -1;
}

#pragma once

// The process table as macOS's kernel hands it out, as far as it is read.

#include <sys/types.h>

#include <cstddef>

inline constexpr int CTL_KERN = 1;
inline constexpr int KERN_PROC = 14;
inline constexpr int KERN_PROC_ALL = 0;

struct extern_proc {
  char before_pid[40];
  pid_t p_pid;
  char before_comm[199];
  char p_comm[17];
};

struct kinfo_proc {
  extern_proc kp_proc;
  char rest[388];
};

static_assert(offsetof(extern_proc, p_pid) == 40 && offsetof(extern_proc, p_comm) == 243);
static_assert(sizeof(kinfo_proc) == 648);

int sysctl(int* name, unsigned length, void* buffer, std::size_t* size, const void* newBuffer,
           std::size_t newSize);

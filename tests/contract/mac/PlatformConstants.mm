// The values and layouts of macOS that the application depends on. They are part of the system's
// binary interface. This file does not compile against declarations that differ.

#include <CFNetwork/CFNetwork.h>
#import <Foundation/Foundation.h>
#include <arpa/inet.h>
#include <netdb.h>
#include <sys/sysctl.h>
#include <sys/xattr.h>

#include <csignal>
#include <cstddef>

namespace launcher {
namespace {

// How the process table is asked, and which parts of a record are read.
static_assert(CTL_KERN == 1 && KERN_PROC == 14 && KERN_PROC_ALL == 0);
static_assert(sizeof(kinfo_proc) == 648);
static_assert(offsetof(kinfo_proc, kp_proc) == 0);
static_assert(offsetof(extern_proc, p_pid) == 40 && sizeof(pid_t) == 4);
static_assert(offsetof(extern_proc, p_comm) == 243 && sizeof(extern_proc::p_comm) == 17);

// What is asked of the resolver, and how an address is written.
static_assert(kCFHostAddresses == 0);
static_assert(NI_NUMERICHOST == 2 && NI_MAXHOST == 1025);
static_assert(AF_INET == 2 && AF_INET6 == 30);
static_assert(sizeof(sockaddr_in) == 16 && sizeof(sockaddr_in6) == 28);
static_assert(offsetof(sockaddr, sa_len) == 0 && offsetof(sockaddr, sa_family) == 1);

// What is asked of the link detector and of the reader of property lists.
static_assert(NSTextCheckingTypeLink == 1U << 5U);
static_assert(NSMatchingReportCompletion == 1U << 1U);
static_assert(NSPropertyListMutableContainers == 1);

// What asks the companion process to stop.
static_assert(SIGTERM == 15);

}  // namespace
}  // namespace launcher

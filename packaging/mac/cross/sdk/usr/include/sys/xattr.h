#pragma once

#include <stdint.h>
#include <sys/types.h>

__BEGIN_DECLS

#define XATTR_NOFOLLOW 0x0001

ssize_t getxattr(const char* path, const char* name, void* value, size_t size, uint32_t position,
                 int options);
int setxattr(const char* path, const char* name, const void* value, size_t size, uint32_t position,
             int options);

__END_DECLS

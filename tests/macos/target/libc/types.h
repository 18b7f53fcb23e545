// Included before everything: the widths of macOS, which musl's headers then leave alone.
#pragma once

typedef signed long long int64_t;
typedef unsigned long long uint64_t;
typedef unsigned long long u_int64_t;
typedef long intmax_t;
typedef unsigned long uintmax_t;
typedef unsigned int __uint32_t;

typedef unsigned short mode_t;
typedef unsigned short nlink_t;
typedef int dev_t;
typedef unsigned long long ino_t;
typedef long long off_t;
typedef long long blkcnt_t;
typedef int blksize_t;
typedef int suseconds_t;

#define __DEFINED_int64_t
#define __DEFINED_uint64_t
#define __DEFINED_u_int64_t
#define __DEFINED_intmax_t
#define __DEFINED_uintmax_t
#define __DEFINED_mode_t
#define __DEFINED_nlink_t
#define __DEFINED_dev_t
#define __DEFINED_ino_t
#define __DEFINED_off_t
#define __DEFINED_blkcnt_t
#define __DEFINED_blksize_t
#define __DEFINED_suseconds_t

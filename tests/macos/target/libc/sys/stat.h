#pragma once

#include_next <sys/stat.h>

#define st_atimespec st_atim
#define st_ctimespec st_ctim
#define st_mtimespec st_mtim

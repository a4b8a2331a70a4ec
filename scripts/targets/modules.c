/*
 * Preloaded into programs that run natively on the libraries of a sysroot, so that DirectFB finds its modules: it looks for
 * them in the system's folder, whatever the program does to DFBARGS. This file lies beside the sysroot's libraries.
 */
#define _GNU_SOURCE
#include <dirent.h>
#include <dlfcn.h>
#include <limits.h>
#include <stdio.h>
#include <string.h>

/* Answers where the sysroot has a file of DirectFB's folder of modules; other names stay as they are. */
static const char *find(const char *name, char *found)
{
    static const char libraries[] = "/usr/lib/";
    const char *modules = name ? strstr(name, "/directfb-1.7") : NULL;
    Dl_info self;

    if (modules == NULL || strncmp(name, libraries, strlen(libraries)) != 0 || !dladdr((void *) find, &self))
        return name;
    snprintf(found, PATH_MAX, "%.*s%s", (int) (strrchr(self.dli_fname, '/') - self.dli_fname), self.dli_fname, modules);
    return found;
}

DIR *opendir(const char *name)
{
    DIR *(*next)(const char *) = (DIR *(*)(const char *)) dlsym(RTLD_NEXT, "opendir");
    char found[PATH_MAX];

    return next(find(name, found));
}

void *dlopen(const char *name, int mode)
{
    void *(*next)(const char *, int) = (void *(*)(const char *, int)) dlsym(RTLD_NEXT, "dlopen");
    char found[PATH_MAX];

    return next(find(name, found), mode);
}

/*
 * Preloaded into 32-bit programs under qemu-user, so that DirectFB finds its modules: readdir_r fails there with EOVERFLOW
 * when the host's file system has 64-bit directory offsets. This one leaves the offset out, which nobody reads.
 */
#define _GNU_SOURCE
#include <dirent.h>
#include <errno.h>
#include <stdio.h>

int readdir_r(DIR *directory, struct dirent *entry, struct dirent **result)
{
    const int errno_before = errno;
    struct dirent64 *next;
    int error;

    errno = 0;
    next = readdir64(directory);
    error = errno;
    errno = errno_before;

    *result = NULL;
    if (next == NULL)
        return error;
    entry->d_ino = (ino_t) next->d_ino;
    entry->d_off = 0;
    entry->d_reclen = sizeof *entry;
    entry->d_type = next->d_type;
    snprintf(entry->d_name, sizeof entry->d_name, "%s", next->d_name);
    *result = entry;
    return 0;
}

#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <functional>
#include <linux/capability.h>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

/// Runs `work` in a child process and gives the text that it returns; what it changes about the process, such
/// as its rights or its folder, ends with it. A failure in it, such as a Qt warning that nobody announced,
/// stands behind the text.
inline std::string in_child(const std::function<std::string()>& work)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        return "no pipe";
    const pid_t child = fork();
    if (child == 0) {
        std::string text = work();
        text += testing::Test::HasFailure() ? " and a failure" : "";
        const bool written = write(ends[1], text.data(), text.size()) == static_cast<ssize_t>(text.size());
        _exit(written ? 0 : 1);
    }
    close(ends[1]);
    std::string text;
    std::array<char, 4096> part;
    for (ssize_t size = 1; size > 0;) {
        size = read(ends[0], part.data(), part.size());
        text.append(part.data(), static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
    }
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return status == 0 ? text : text + " and an end with status " + std::to_string(status);
}

inline std::string yes_or_no(bool answer)
{
    return answer ? "yes" : "no";
}

/// Takes from this process what a superuser may do beyond the permissions of files and folders.
inline void become_ordinary_user()
{
    __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, 2> none = {};
    syscall(SYS_capset, &header, none.data());
}

inline bool write_text(const char* path, const std::string& text)
{
    std::FILE* const file = std::fopen(path, "w");
    const bool written = file && std::fputs(text.c_str(), file) >= 0;
    return file && std::fclose(file) == 0 && written;
}

/// Gives this process file systems of its own to mount; an ordinary user becomes the superuser of a space of
/// names of its own for it.
inline bool leave_shared_mounts()
{
    if (unshare(CLONE_NEWNS) != 0) {
        const std::string user = std::to_string(geteuid());
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0
            || !write_text("/proc/self/uid_map", "0 " + user + " 1"))
            return false;
    }
    return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

/// Mounts an empty file system in memory on `folder`, which only this process and its children see. False,
/// with the reason in errno, where a process may not do so.
inline bool mount_memory_disk(const char* folder, const char* options)
{
    return leave_shared_mounts() && mount("tmpfs", folder, "tmpfs", 0, options) == 0;
}

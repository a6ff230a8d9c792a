#include "tests/endurance/storage.h"

#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <map>
#include <mutex>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Storage;

namespace {

constexpr int unrecorded = -1; // memory that programs share, which no disk keeps

struct State
{
    std::recursive_mutex mutex;
    std::string folder; // with a slash at its end; empty: nothing is watched
    bool records = false;
    bool dropsSyncs = false;
    std::vector<Operation> operations;
    std::map<std::string, int> names; // of the files, below the folder
    std::map<int, int> handles; // to the files that they are open on
    int files = 0;
    Fault fault{Call::Open, 0, 0};
    int calls = 0;
};

State &state()
{
    static auto *const one = new State; // files are closed until the very end
    return *one;
}

template <typename Function> Function *real(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

// Below the folder; false for all that is not.
bool below(const char *path, std::string &name)
{
    State &s = state();
    if (s.folder.empty() || !path)
        return false;
    std::string full(path);
    if (full[0] != '/') {
        char here[PATH_MAX];
        full = std::string(getcwd(here, sizeof here) ? here : "") + '/' + full;
    }
    if (full.compare(0, s.folder.size(), s.folder) != 0)
        return false;
    name = full.substr(s.folder.size());
    return true;
}

bool fails(Call call)
{
    State &s = state();
    if (s.fault.number == 0 || s.fault.call != call)
        return false;
    ++s.calls;
    if (s.calls != s.fault.number && !(s.fault.stays && s.calls > s.fault.number))
        return false;
    errno = s.fault.error;
    return true;
}

void note(Operation operation)
{
    if (state().records)
        state().operations.push_back(std::move(operation));
}

// The file of a watched handle, or null.
int *fileOf(int handle)
{
    State &s = state();
    const auto found = s.folder.empty() ? s.handles.end() : s.handles.find(handle);
    return found == s.handles.end() ? nullptr : &found->second;
}

int openFile(const char *path, int flags, mode_t mode)
{
    static auto *const open = real<int(const char *, int, ...)>("open64");
    State &s = state();
    const std::lock_guard guard(s.mutex);
    if ((flags & O_TMPFILE) == O_TMPFILE) { // as on file systems that know no files without a name
        errno = EOPNOTSUPP;
        return -1;
    }
    std::string name;
    if (!below(path, name) || (flags & O_DIRECTORY) != 0)
        return open(path, flags, mode);
    if (fails(Call::Open))
        return -1;
    const bool isNew = ::access(path, F_OK) != 0;
    const int handle = open(path, flags, mode);
    struct stat info = {};
    if (handle < 0 || fstat(handle, &info) != 0 || S_ISDIR(info.st_mode))
        return handle;
    const bool isShared = name.ends_with("-shm");
    if (!isShared && isNew) {
        s.names[name] = s.files;
        note({Step::Create, s.files++, name, {}, static_cast<int64_t>(info.st_ino), {}});
    }
    const auto known = s.names.find(name);
    if (s.records && !isShared && known == s.names.end())
        abort(); // it came about by a call that is not known here
    s.handles[handle] = isShared || known == s.names.end() ? unrecorded : known->second;
    if (!isShared && !isNew && (flags & O_TRUNC) != 0)
        note({Step::Truncate, s.handles[handle], {}, {}, 0, {}});
    return handle;
}

template <typename Write> ssize_t writeFile(int handle, const void *bytes, off64_t place, Write write)
{
    State &s = state();
    const std::lock_guard guard(s.mutex);
    const int *const file = fileOf(handle);
    if (!file)
        return write();
    if (fails(Call::Write))
        return -1;
    if (place < 0)
        place =
            (fcntl(handle, F_GETFL) & O_APPEND) != 0 ? lseek64(handle, 0, SEEK_END) : lseek64(handle, 0, SEEK_CUR);
    const ssize_t written = write();
    if (written > 0 && *file != unrecorded)
        note({Step::Write, *file, {}, {}, place, std::string(static_cast<const char *>(bytes), written)});
    return written;
}

int truncateFile(int handle, off64_t length)
{
    static auto *const truncate = real<int(int, off64_t)>("ftruncate64");
    const std::lock_guard guard(state().mutex);
    const int *const file = fileOf(handle);
    if (file && fails(Call::Write))
        return -1;
    const int result = truncate(handle, length);
    if (file && *file != unrecorded && result == 0)
        note({Step::Truncate, *file, {}, {}, length, {}});
    return result;
}

int syncFile(int handle)
{
    static auto *const sync = real<int(int)>("fsync");
    State &s = state();
    const std::lock_guard guard(s.mutex);
    if (s.folder.empty())
        return sync(handle);
    if (const int *const file = fileOf(handle)) {
        if (fails(Call::Sync))
            return -1;
        if (!s.dropsSyncs)
            note({Step::Sync, *file, {}, {}, 0, {}});
        return 0; // the folder is one in memory, or thrown away
    }
    char path[PATH_MAX] = {};
    const std::string link = "/proc/self/fd/" + std::to_string(handle);
    std::string name;
    if (readlink(link.c_str(), path, sizeof path - 1) < 0 || !below((std::string(path) + '/').c_str(), name))
        return sync(handle);
    if (fails(Call::Sync))
        return -1;
    if (!s.dropsSyncs)
        note({Step::SyncFolder, -1, name, {}, 0, {}});
    return 0;
}

template <typename Rename> int renameFile(const char *from, const char *to, Rename rename)
{
    State &s = state();
    const std::lock_guard guard(s.mutex);
    std::string name;
    std::string target;
    if (!below(from, name) || !below(to, target))
        return rename();
    if (fails(Call::Name))
        return -1;
    const int result = rename();
    if (result != 0)
        return result;
    const auto moved = s.names.extract(name);
    if (moved.empty())
        return result;
    s.names[target] = moved.mapped();
    note({Step::Rename, moved.mapped(), name, target, 0, {}});
    return result;
}

template <typename Change> int changeName(const char *path, Step step, Change change)
{
    State &s = state();
    const std::lock_guard guard(s.mutex);
    std::string name;
    if (!below(path, name))
        return change();
    if (fails(Call::Name))
        return -1;
    const int result = change();
    if (result == 0 && (step == Step::MakeFolder || s.names.erase(name) > 0))
        note({step, -1, name, {}, 0, {}});
    return result;
}

int control(int handle, int command, void *argument)
{
    static auto *const control = real<int(int, int, ...)>("fcntl64");
    const std::lock_guard guard(state().mutex);
    const bool locks = command == F_SETLK || command == F_OFD_SETLK;
    if (locks && fileOf(handle) && static_cast<struct flock *>(argument)->l_type != F_UNLCK && fails(Call::Lock))
        return -1;
    return control(handle, command, argument);
}

int refuse()
{
    errno = EINVAL;
    return -1;
}

} // namespace

namespace Storage {

void record(const std::string &folder)
{
    rest();
    state().folder = folder + '/';
    state().records = true;
}

void answered(const std::string &what) { note({Step::Answered, -1, what, {}, 0, {}}); }
const std::vector<Operation> &recorded() { return state().operations; }
void dropSyncs(bool drop) { state().dropsSyncs = drop; }

void watch(const std::string &folder, const Fault &fault)
{
    state().folder = folder + '/';
    state().fault = fault;
    state().calls = 0;
}

int calls() { return state().calls; }

void rest()
{
    State &s = state();
    s.folder.clear();
    s.records = false;
    s.fault.number = 0;
    s.operations.clear();
    s.names.clear();
    s.handles.clear();
    s.files = 0;
}

} // namespace Storage

// The system's own functions, which the loader looks for here first.
#define VISIBLE extern "C" __attribute__((visibility("default")))
#define SAME_AS(name) __attribute__((alias(name)))

VISIBLE int open64(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return openFile(path, flags, mode);
}
VISIBLE int open(const char *path, int flags, ...) SAME_AS("open64");

VISIBLE int fcntl64(int handle, int command, ...)
{
    va_list rest;
    va_start(rest, command);
    void *const argument = va_arg(rest, void *);
    va_end(rest);
    return control(handle, command, argument);
}
VISIBLE int fcntl(int handle, int command, ...) SAME_AS("fcntl64");

VISIBLE ssize_t write(int handle, const void *bytes, size_t count)
{
    static auto *const next = real<ssize_t(int, const void *, size_t)>("write");
    return writeFile(handle, bytes, -1, [=] { return next(handle, bytes, count); });
}
VISIBLE ssize_t pwrite64(int handle, const void *bytes, size_t count, off64_t place)
{
    static auto *const next = real<ssize_t(int, const void *, size_t, off64_t)>("pwrite64");
    return writeFile(handle, bytes, place, [=] { return next(handle, bytes, count, place); });
}
VISIBLE ssize_t pwrite(int handle, const void *bytes, size_t count, off64_t place) SAME_AS("pwrite64");

VISIBLE int ftruncate64(int handle, off64_t length) noexcept { return truncateFile(handle, length); }
VISIBLE int ftruncate(int handle, off64_t length) noexcept SAME_AS("ftruncate64");
VISIBLE int fsync(int handle) { return syncFile(handle); }
VISIBLE int fdatasync(int handle) SAME_AS("fsync");

VISIBLE int rename(const char *from, const char *to) noexcept
{
    static auto *const next = real<int(const char *, const char *)>("rename");
    return renameFile(from, to, [=] { return next(from, to); });
}
VISIBLE int renameat2(int folder, const char *from, int otherFolder, const char *to, unsigned flags) noexcept
{
    static auto *const next = real<int(int, const char *, int, const char *, unsigned)>("renameat2");
    return renameFile(from, to, [=] { return next(folder, from, otherFolder, to, flags); });
}
VISIBLE int unlink(const char *path) noexcept
{
    return changeName(path, Step::Unlink, [=] { return real<int(const char *)>("unlink")(path); });
}
VISIBLE int rmdir(const char *path) noexcept
{
    return changeName(path, Step::Unlink, [=] { return real<int(const char *)>("rmdir")(path); });
}
VISIBLE int mkdir(const char *path, mode_t mode) noexcept
{
    return changeName(path, Step::MakeFolder, [=] { return real<int(const char *, mode_t)>("mkdir")(path, mode); });
}
VISIBLE int close(int handle)
{
    static auto *const next = real<int(int)>("close");
    {
        const std::lock_guard guard(state().mutex);
        state().handles.erase(handle);
    }
    return next(handle);
}

// Ways that pass by the functions above; who is refused takes those.
VISIBLE ssize_t sendfile(int, int, off_t *, size_t) noexcept { return refuse(); }
VISIBLE int linkat(int, const char *, int, const char *, int) noexcept { return refuse(); }
VISIBLE int link(const char *, const char *) noexcept { return refuse(); }

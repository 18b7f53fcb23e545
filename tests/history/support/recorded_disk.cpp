#include "history/support/recorded_disk.h"

#include <filesystem>
#include <new>

namespace quelby {

namespace {

// What SQLite takes for an open file, in memory of its own; the system's own follows it there.
struct File {
    sqlite3_file base;
    RecordedDisk* disk; // none for what is neither the database nor its log
    const char* path;   // SQLite's own, which outlives the file

    [[nodiscard]] sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }

    [[nodiscard]] const sqlite3_io_methods& methods() { return *real()->pMethods; }
};

File& of(sqlite3_file* file) {
    return *reinterpret_cast<File*>(file);
}

int change(File& file, DiskChange wanted, const std::function<int()>& happen) {
    if (file.disk == nullptr) {
        return happen();
    }
    wanted.file = std::filesystem::path(file.path).filename();
    return file.disk->change(std::move(wanted), happen);
}

int write(sqlite3_file* handle, const void* bytes, int count, sqlite3_int64 place) {
    auto& file = of(handle);
    return change(file,
                  {.kind = DiskChange::Kind::write,
                   .place = place,
                   .bytes = {static_cast<const char*>(bytes), static_cast<std::size_t>(count)}},
                  [&] { return file.methods().xWrite(file.real(), bytes, count, place); });
}

int truncate(sqlite3_file* handle, sqlite3_int64 size) {
    auto& file = of(handle);
    return change(file, {.kind = DiskChange::Kind::truncate, .place = size},
                  [&] { return file.methods().xTruncate(file.real(), size); });
}

int flush(sqlite3_file* handle, int flags) {
    auto& file = of(handle);
    return change(file, {.kind = DiskChange::Kind::flush},
                  [&] { return file.methods().xSync(file.real(), flags); });
}

// Everything else is the system's. Version 2 has no mapped files, which would be written past all this.
template <auto method, typename... Arguments>
int passOn(sqlite3_file* file, Arguments... arguments) {
    return (of(file).methods().*method)(of(file).real(), arguments...);
}

void barrier(sqlite3_file* file) {
    of(file).methods().xShmBarrier(of(file).real());
}

using Methods = sqlite3_io_methods;
constexpr Methods methods{.iVersion = 2,
                          .xClose = passOn<&Methods::xClose>,
                          .xRead = passOn<&Methods::xRead, void*, int, sqlite3_int64>,
                          .xWrite = write,
                          .xTruncate = truncate,
                          .xSync = flush,
                          .xFileSize = passOn<&Methods::xFileSize, sqlite3_int64*>,
                          .xLock = passOn<&Methods::xLock, int>,
                          .xUnlock = passOn<&Methods::xUnlock, int>,
                          .xCheckReservedLock = passOn<&Methods::xCheckReservedLock, int*>,
                          .xFileControl = passOn<&Methods::xFileControl, int, void*>,
                          .xSectorSize = passOn<&Methods::xSectorSize>,
                          .xDeviceCharacteristics = passOn<&Methods::xDeviceCharacteristics>,
                          .xShmMap = passOn<&Methods::xShmMap, int, int, int, void volatile**>,
                          .xShmLock = passOn<&Methods::xShmLock, int, int, int>,
                          .xShmBarrier = barrier,
                          .xShmUnmap = passOn<&Methods::xShmUnmap, int>,
                          .xFetch = nullptr,
                          .xUnfetch = nullptr};

sqlite3_vfs& systemsOwn() {
    return *sqlite3_vfs_find("unix");
}

int open(sqlite3_vfs* vfs, const char* path, sqlite3_file* handle, int flags, int* given) {
    constexpr int recorded = SQLITE_OPEN_MAIN_DB | SQLITE_OPEN_WAL;
    auto& file = *new (handle) File{
        {}, (flags & recorded) != 0 ? static_cast<RecordedDisk*>(vfs->pAppData) : nullptr, path};
    const int outcome = systemsOwn().xOpen(&systemsOwn(), path, file.real(), flags, given);
    file.base.pMethods = outcome == SQLITE_OK ? &methods : nullptr;
    return outcome;
}

} // namespace

RecordedDisk::RecordedDisk() : vfs_(systemsOwn()) {
    vfs_.zName = "recorded";
    vfs_.pAppData = this;
    vfs_.szOsFile += static_cast<int>(sizeof(File));
    vfs_.xOpen = open;
    sqlite3_vfs_register(&vfs_, 1);
}

RecordedDisk::~RecordedDisk() {
    sqlite3_vfs_unregister(&vfs_);
}

int RecordedDisk::change(DiskChange wanted, const std::function<int()>& happen) {
    const int failure = outcome ? outcome(changes_.size()) : SQLITE_OK;
    changes_.push_back(std::move(wanted));
    return failure == SQLITE_OK ? happen() : failure;
}

} // namespace quelby

#include "monitor/support/scarce_memory.h"

#include <algorithm>
#include <cstdlib>
#include <new>

#include <sqlite3.h>

namespace quelby {

namespace {

struct State {
    bool isCounting = false;
    std::size_t requests = 0;
    std::size_t failing = 0;
    Whose whose = Whose::everybodys;
    Shortage shortage = Shortage::once;
    std::ptrdiff_t living = 0;
};

// Memory is asked for before anything that could own this is there.
constinit State state;

bool isRefused(Whose whose) {
    if (!state.isCounting || (state.whose != whose && state.whose != Whose::everybodys)) {
        return false;
    }
    ++state.requests;
    const bool lasts = state.shortage == Shortage::fromThenOn && state.requests > state.failing;
    return state.failing != 0 && (state.requests == state.failing || lasts);
}

void* given(void* piece) {
    state.living += piece == nullptr ? 0 : 1;
    return piece;
}

void giveBack(void* piece) {
    state.living -= piece == nullptr ? 0 : 1;
    std::free(piece);
}

sqlite3_mem_methods sqlitesOwn;

void* sqlitesPiece(int size) {
    return isRefused(Whose::sqlites) ? nullptr : given(sqlitesOwn.xMalloc(size));
}

void* sqlitesLargerPiece(void* piece, int size) {
    return isRefused(Whose::sqlites) ? nullptr : sqlitesOwn.xRealloc(piece, size);
}

void takeBackFromSqlite(void* piece) {
    state.living -= piece == nullptr ? 0 : 1;
    sqlitesOwn.xFree(piece);
}

// Before SQLite is used at all.
const bool sqliteAsks = [] {
    sqlite3_config(SQLITE_CONFIG_GETMALLOC, &sqlitesOwn);
    auto methods = sqlitesOwn;
    methods.xMalloc = sqlitesPiece;
    methods.xRealloc = sqlitesLargerPiece;
    methods.xFree = takeBackFromSqlite;
    return sqlite3_config(SQLITE_CONFIG_MALLOC, &methods) == SQLITE_OK;
}();

} // namespace

ScarceMemory::ScarceMemory(std::size_t failing, Whose requests, Shortage shortage) {
    state.requests = 0;
    state.failing = sqliteAsks ? failing : 0;
    state.whose = requests;
    state.shortage = shortage;
    state.isCounting = true;
}

ScarceMemory::~ScarceMemory() {
    state.isCounting = false;
}

std::size_t ScarceMemory::requests() const {
    return state.requests;
}

std::ptrdiff_t livingPieces() {
    return state.living;
}

} // namespace quelby

// All forms that are in use, because those of a sanitizer do not go by these.

void* operator new(std::size_t size) {
    if (quelby::isRefused(quelby::Whose::cpps)) {
        throw std::bad_alloc();
    }
    void* const piece = quelby::given(std::malloc(std::max<std::size_t>(size, 1)));
    if (piece == nullptr) {
        throw std::bad_alloc();
    }
    return piece;
}

void* operator new(std::size_t size, std::align_val_t alignment) {
    if (quelby::isRefused(quelby::Whose::cpps)) {
        throw std::bad_alloc();
    }
    const auto unit = static_cast<std::size_t>(alignment);
    void* const piece = quelby::given(std::aligned_alloc(unit, (size + unit - 1) / unit * unit));
    if (piece == nullptr) {
        throw std::bad_alloc();
    }
    return piece;
}

void operator delete(void* piece) noexcept {
    quelby::giveBack(piece);
}

void operator delete(void* piece, std::size_t /*size*/) noexcept {
    quelby::giveBack(piece);
}

void operator delete(void* piece, std::align_val_t /*alignment*/) noexcept {
    quelby::giveBack(piece);
}

void operator delete(void* piece, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept {
    quelby::giveBack(piece);
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return quelby::isRefused(quelby::Whose::cpps) ? nullptr : quelby::given(std::malloc(size + 1));
}

void* operator new[](std::size_t size) {
    return operator new(size);
}

void operator delete[](void* piece) noexcept {
    quelby::giveBack(piece);
}

void operator delete[](void* piece, std::size_t /*size*/) noexcept {
    quelby::giveBack(piece);
}

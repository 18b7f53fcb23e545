// What something says or looks like as a whole, written down in a file below tests/.
//
// With QUELBY_UPDATE_GOLDEN in the environment the file is written instead of compared with;
// scripts/update-golden does that, and shows what has changed.
#pragma once

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace quelby {

inline void expectGolden(const std::string& text, const std::string& file) {
    const auto path = QUELBY_SOURCE_DIR "/tests/" + file;
    if (std::getenv("QUELBY_UPDATE_GOLDEN") != nullptr) {
        std::ofstream(path, std::ios::binary) << text;
        return;
    }
    std::ifstream stream(path, std::ios::binary);
    EXPECT_EQ(text, std::string(std::istreambuf_iterator<char>(stream), {})) << file;
}

} // namespace quelby

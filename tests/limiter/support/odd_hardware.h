// Hardware that refuses, rounds, forgets or ignores what is written to it.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "limiter/kernel/attributes.h"

namespace quelby::limiter {

// A tree of attributes that answer as a test says.
class OddHardware final : public Attributes {
public:
    struct Attribute {
        std::string text;
        std::errc readFailure{};                                  // none unless set
        std::function<std::errc(const std::string& value)> take;  // keeps the value where there is none
        std::function<std::string(const std::string& text)> give; // likewise
    };

    [[nodiscard]] std::vector<std::string> names(const std::string& folder) const override;
    [[nodiscard]] bool exists(const std::string& path) const override;
    [[nodiscard]] tl::expected<std::string, std::error_code>
    read(const std::string& attribute) const override;
    [[nodiscard]] std::error_code write(const std::string& attribute, const std::string& value) override;

    Attribute& operator[](const std::string& path) { return attributes_[path]; }

    [[nodiscard]] std::string text(const std::string& path) const { return attributes_.at(path).text; }

    void remove(const std::string& folder);

    // "BAT0/charge_control_end_threshold=80", in the order of the writes; those that were refused end with
    // "!".
    std::vector<std::string> writes;
    int reads = 0;

private:
    std::map<std::string, Attribute> attributes_;
};

} // namespace quelby::limiter

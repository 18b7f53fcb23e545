#pragma once

#include <memory>
#include <utility>

namespace quelby {

// A record, or part of one, in the hands of several: no copy is made of it, and the whole lives as long as
// anybody holds a part. There may be none, which reads as an empty record.
template <typename Record>
class SharedRecord {
public:
    SharedRecord() = default;

    explicit SharedRecord(Record record) : record_(std::make_shared<const Record>(std::move(record))) {}

    // A part of a whole; none of none.
    template <typename Whole>
    SharedRecord(const SharedRecord<Whole>& whole, const Record& part)
        : record_(whole.present() ? std::shared_ptr<const Record>(whole.record_, &part) : nullptr) {}

    [[nodiscard]] bool present() const { return record_ != nullptr; }

    const Record& operator*() const {
        static const Record empty{};
        return present() ? *record_ : empty;
    }

    const Record* operator->() const { return &**this; }

    // By what the records say.
    bool operator==(const SharedRecord& other) const {
        return record_ == other.record_ || (present() && other.present() && *record_ == *other.record_);
    }

private:
    template <typename Part>
    friend class SharedRecord;

    std::shared_ptr<const Record> record_;
};

} // namespace quelby

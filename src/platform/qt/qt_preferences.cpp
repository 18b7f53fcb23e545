#include "platform/qt/qt_preferences.h"

namespace quelby {

namespace {

QString qtKey(std::string_view key) {
    return QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

QString qtPath(const std::filesystem::path& path) {
    return QString::fromStdString(path.string());
}

} // namespace

QtPreferences::QtPreferences(const std::optional<std::filesystem::path>& file)
    : settings_(file ? QSettings(qtPath(*file), QSettings::IniFormat)
                     : QSettings(QSettings::NativeFormat, QSettings::UserScope, "Quelby", "Quelby"))
    , ownFolder_(!file) {}

std::optional<std::string> QtPreferences::text(std::string_view key) {
    const auto value = settings_.value(qtKey(key));
    return value.typeId() == QMetaType::QString ? std::optional(value.toString().toStdString())
                                                : std::nullopt;
}

// An INI file holds texts only, so a Boolean comes back as the word.
bool QtPreferences::flag(std::string_view key) {
    const auto value = settings_.value(qtKey(key));
    return value.typeId() == QMetaType::Bool ? value.toBool() : value.toString() == QLatin1String("true");
}

void QtPreferences::setText(std::string_view key, std::string_view value) {
    set(qtKey(key), QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size())));
}

void QtPreferences::setFlag(std::string_view key, bool value) {
    set(qtKey(key), value);
}

// What is stored already is not written again: restoring the preferences must not cost a write at every
// start.
void QtPreferences::set(const QString& key, const QVariant& value) {
    if (settings_.value(key).toString() != value.toString()) {
        settings_.setValue(key, value);
        settings_.sync();
    }
}

void QtPreferences::remove(std::string_view key) {
    settings_.remove(qtKey(key));
    settings_.sync();
}

void QtPreferences::removeAll() {
    settings_.clear();
    settings_.sync();
    const std::filesystem::path file = settings_.fileName().toStdString();
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
    if (ownFolder_) {
        std::filesystem::remove(file.parent_path(), ignored); // only an empty folder goes this way
    }
}

} // namespace quelby

# Every library that Quelby is built with; the README says why each is here.

find_package(fmt REQUIRED)
find_package(FastFloat REQUIRED)
find_package(tl-expected REQUIRED)
find_package(nlohmann_json REQUIRED)
find_package(CLI11 REQUIRED)
find_package(ICU REQUIRED COMPONENTS uc i18n)
find_package(SQLite3 REQUIRED)
find_package(Qt6 REQUIRED COMPONENTS Core)

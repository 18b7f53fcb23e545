#include "console/program.h"

#include <string>

#include <QCoreApplication>

#include "console/standard_output.h"
#include "console/utf8_locale.h"

namespace quelby {

namespace {

constexpr int couldNotBeDone = 1;

int exitStatus(std::string_view name, const Result<void>& outcome) {
    if (outcome) {
        return 0;
    }
    writeToStandardError(std::string(name) + ": " + outcome.error().sentence + '\n');
    return couldNotBeDone;
}

} // namespace

int runProgram(std::string_view name, char** argv, const std::function<Result<void>()>& work) {
    useUtf8Locale();
    int programNameOnly = 1; // Qt has no say in the other arguments
    const QCoreApplication application(programNameOnly, argv);
    return exitStatus(name, work());
}

int printAnswer(std::string_view name, const Answer& answer) {
    if (answer.exitStatus != 0) {
        writeToStandardError(answer.text);
        return answer.exitStatus;
    }
    return exitStatus(name, writeToStandardOutput(answer.text));
}

} // namespace quelby

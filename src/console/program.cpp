#include "console/program.h"

#include <string>

#include <QCoreApplication>

#include "console/standard_output.h"

namespace quelby {

namespace {

constexpr int couldNotBeDone = 1;

} // namespace

int reportOutcome(std::string_view name, const Result<void>& outcome) {
    if (outcome) {
        return 0;
    }
    writeToStandardError(std::string(name) + ": " + outcome.error().sentence + '\n');
    return couldNotBeDone;
}

int runProgram(std::string_view name, char** argv, const std::function<Result<void>()>& work) {
    return runProgramWith<QCoreApplication>(name, argv, work);
}

int printAnswer(std::string_view name, const Answer& answer) {
    if (answer.exitStatus != 0) {
        writeToStandardError(answer.text);
        return answer.exitStatus;
    }
    return reportOutcome(name, writeToStandardOutput(answer.text));
}

} // namespace quelby

#include "platform/qt/qt_run_loop.h"

#include <new>

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace quelby {
namespace {

using std::chrono::milliseconds;

class QtRunLoopTest : public testing::Test {
protected:
    int argumentCount = 1;
    char name[6] = "tests";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{argumentCount, arguments};
};

TEST_F(QtRunLoopTest, CallsARepeatingTimerUntilItIsInvalidated) {
    QtRunLoop loop;
    int calls = 0;
    std::shared_ptr<RepeatingTimer> timer;
    timer = loop.repeat(milliseconds(1), [&] {
        if (++calls == 3) {
            timer->invalidate();
            timer->invalidate();
            loop.repeat(milliseconds(10), [] { QCoreApplication::quit(); }); // long enough for a fourth call
        }
    });
    QCoreApplication::exec();
    EXPECT_EQ(calls, 3);
}

TEST_F(QtRunLoopTest, KeepsATimerWhoseHandleIsGone) {
    QtRunLoop loop;
    int calls = 0;
    loop.repeat(milliseconds(0), [&] {
        if (++calls == 2) {
            QCoreApplication::quit();
        }
    });
    QCoreApplication::exec();
    EXPECT_EQ(calls, 2);
}

TEST_F(QtRunLoopTest, CallsWhatIsPostedAfterwardsAndInOrder) {
    QtRunLoop loop;
    std::string order;
    loop.post([&] { order += 'b'; });
    loop.post([] { QCoreApplication::quit(); });
    order += 'a';
    QCoreApplication::exec();
    EXPECT_EQ(order, "ab");
}

TEST_F(QtRunLoopTest, GoesOnAfterAnActionThatRanOutOfMemory) {
    QtRunLoop loop;
    int calls = 0;
    loop.post([] { throw std::bad_alloc(); });
    loop.repeat(milliseconds(0), [&] {
        if (++calls == 3) {
            QCoreApplication::quit();
        }
        throw std::bad_alloc();
    });
    QCoreApplication::exec();
    EXPECT_EQ(calls, 3);
}

TEST_F(QtRunLoopTest, EndsItsTimersAndWhatIsPostedWithItself) {
    int calls = 0;
    std::shared_ptr<RepeatingTimer> timer;
    {
        QtRunLoop loop;
        timer = loop.repeat(milliseconds(0), [&] { ++calls; });
        loop.post([&] { ++calls; });
    }
    QtRunLoop other;
    other.repeat(milliseconds(5), [] { QCoreApplication::quit(); });
    QCoreApplication::exec();
    timer->invalidate();
    EXPECT_EQ(calls, 0);
}

} // namespace
} // namespace quelby

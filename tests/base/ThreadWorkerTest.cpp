#include "base/Lifetime.h"
#include "base/SystemClock.h"
#include "base/TaskScope.h"
#include "base/ThreadWorker.h"

#include <future>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <QTest>

#include <gtest/gtest.h>

namespace vantrell {
namespace {

using Texts = std::vector<std::string>;

QCoro::Task<> note(Worker& worker, std::function<std::string()> work, std::stop_token cancel, Texts& texts) {
    const auto home = std::this_thread::get_id();
    const auto result = co_await worker.run(std::move(work), std::move(cancel));
    EXPECT_EQ(std::this_thread::get_id(), home);
    texts.push_back(result.value_or("absent"));
}

TEST(ThreadWorker, WorksInOrderOnAnotherThreadAndAnswersHere) {
    Texts texts;
    TaskScope tasks;
    ThreadWorker worker;
    const auto home = std::this_thread::get_id();
    for (const std::string name : {"first", "second", "third"}) {
        tasks.spawn(note(
            worker, [name, home] { return std::this_thread::get_id() == home ? "here" : name; }, {}, texts));
    }
    EXPECT_TRUE(texts.empty());
    ASSERT_TRUE(QTest::qWaitFor([&] { return tasks.pending() == 0; }, 10'000));
    EXPECT_EQ(texts, (Texts{"first", "second", "third"}));
}

TEST(ThreadWorker, WhoeverIsCancelledGoesAtOnceAndTheWorkEndsUnheard) {
    Texts texts;
    TaskScope tasks;
    bool hasEnded = false;
    {
        ThreadWorker worker;
        Lifetime lifetime;
        std::promise<void> go;
        const auto work = [gate = go.get_future().share(), &hasEnded] {
            gate.wait();
            hasEnded = true;
            return std::string("too late");
        };
        tasks.spawn(note(worker, work, lifetime.token(), texts));
        lifetime.end();
        EXPECT_EQ(texts, Texts{"absent"});
        EXPECT_EQ(tasks.pending(), 0);
        tasks.spawn(note(worker, work, lifetime.token(), texts));
        EXPECT_EQ(texts, (Texts{"absent", "absent"}));
        go.set_value();
    }
    EXPECT_TRUE(hasEnded) << "the worker waits for what is under way";
}

QCoro::Task<> fail(Clock& clock, std::stop_token cancel, bool& hasGoneOn) {
    co_await clock.sleep(std::chrono::hours(1), std::move(cancel));
    hasGoneOn = true;
    throw std::runtime_error("late");
}

TEST(TaskScope, ATaskThatDoesNotEndInTimeMayOutlastIt) {
    Lifetime lifetime;
    SystemClock clock;
    bool hasGoneOn = false;
    std::optional<TaskScope> tasks(std::in_place);
    tasks->spawn(fail(clock, lifetime.token(), hasGoneOn));
    tasks->finish(std::chrono::milliseconds::zero());
    EXPECT_EQ(tasks->pending(), 1);
    tasks.reset();
    lifetime.end();
    EXPECT_TRUE(QTest::qWaitFor([&] { return hasGoneOn; }));
}

}  // namespace
}  // namespace vantrell

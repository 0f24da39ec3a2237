// SPDX-License-Identifier: MIT
// Work for the main thread: order, waiting, exceptions, closing, and who may do it.
#include <vagrel/platform/MainThreadQueue.h>

#include <vagrel/foundation/Exceptions.h>

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <vector>

namespace vagrel {
namespace {

using namespace std::chrono_literals;

struct Queue : testing::Test {
    MainThreadQueue queue;
    std::vector<int> done;

    auto Note(int number) {
        return [this, number] { done.push_back(number); };
    }
    /// Pumps until a thread has ended.
    void PumpUntil(const std::atomic<bool>& ended) {
        while (!ended)
            queue.WaitAndPump(10ms);
    }
};

TEST_F(Queue, PostedWorkRunsInOrderWhenItIsPumped) {
    int woken = 0;
    queue.SetWakeUp([&] { ++woken; });
    queue.Post(Note(1));
    queue.Post([this] { queue.Post(Note(3)); });
    queue.Post(Note(2));
    EXPECT_EQ(done, std::vector<int>{});
    EXPECT_EQ(queue.Pump(), 3u);
    EXPECT_EQ(done, (std::vector{1, 2})) << "what came meanwhile waits";
    EXPECT_EQ(queue.Pump(), 1u);
    EXPECT_EQ(done, (std::vector{1, 2, 3}));
    EXPECT_EQ(queue.Pump(), 0u);
    EXPECT_EQ(woken, 4);
}

TEST_F(Queue, AnExceptionOfPostedWorkKeepsTheRest) {
    queue.Post([] { throw std::runtime_error("bad"); });
    queue.Post(Note(1));
    EXPECT_THROW(queue.Pump(), std::runtime_error);
    queue.Pump();
    EXPECT_EQ(done, std::vector{1});
}

TEST_F(Queue, NobodyButTheEventLoopOfTheMainThreadPumps) {
    std::size_t nested = 1;
    queue.Post([&] {
        EXPECT_FALSE(queue.CanPump());
        nested = queue.Pump() + queue.WaitAndPump(10s); // one tool inside another
        queue.Synchronize(Note(1));                     // at once all the same
        throw std::runtime_error("bad");
    });
    queue.Post(Note(2));
    std::thread([&] {
        EXPECT_FALSE(queue.CanPump());
        EXPECT_EQ(queue.Pump() + queue.WaitAndPump(10s), 0u);
    }).join();
    EXPECT_EQ(done, std::vector<int>{});
    EXPECT_THROW(queue.Pump(), std::runtime_error);
    EXPECT_EQ(nested, 0u);
    EXPECT_EQ(done, std::vector{1});
    EXPECT_TRUE(queue.CanPump());
    EXPECT_EQ(queue.WaitAndPump(10s), 1u) << "after an exception too";
    EXPECT_EQ(done, (std::vector{1, 2}));
}

TEST_F(Queue, SynchronizedWorkIsWaitedForAndThrowsAtItsCaller) {
    queue.Synchronize(Note(1)); // on the main thread: at once
    std::atomic<bool> ended = false;
    std::string told;
    std::thread worker([&] {
        std::thread::id where;
        queue.Synchronize([&] { where = std::this_thread::get_id(); });
        EXPECT_NE(where, std::this_thread::get_id());
        try {
            queue.Synchronize([] { throw EVagrel(u"no"); });
        } catch (const EVagrel& error) {
            told = error.what();
        }
        ended = true;
    });
    PumpUntil(ended);
    worker.join();
    EXPECT_EQ(told, "no");
    EXPECT_EQ(done, std::vector{1});
}

TEST_F(Queue, ManyThreadsAreServedOneAtATime) {
    std::atomic<int> ended = 0;
    int count = 0; // no lock: the main thread alone counts
    std::vector<std::thread> workers;
    for (int i = 0; i < 4; ++i)
        workers.emplace_back([&] {
            for (int k = 0; k < 200; ++k)
                k % 2 ? queue.Post([&] { ++count; }) : queue.Synchronize([&] { ++count; });
            ++ended;
        });
    while (ended < 4)
        queue.WaitAndPump(10ms);
    for (std::thread& worker : workers)
        worker.join();
    while (queue.Pump()) {
    }
    EXPECT_EQ(count, 800);
}

TEST_F(Queue, ClosingLetsNobodyWait) {
    std::atomic<bool> waiting = false, refused = false;
    queue.SetWakeUp([&] { waiting = true; });
    std::thread worker([&] {
        try {
            queue.Synchronize(Note(1));
        } catch (const EInvalidOperation&) {
            refused = true;
        }
    });
    while (!waiting)
        std::this_thread::yield();
    queue.Close();
    worker.join();
    EXPECT_TRUE(refused);
    queue.Post(Note(2));
    EXPECT_EQ(queue.Pump(), 0u);
    queue.Open();
    queue.Post(Note(3));
    queue.Pump();
    EXPECT_EQ(done, std::vector{3});
}

TEST_F(Queue, AnotherThreadCanBecomeTheMainThread) {
    std::thread([&] {
        EXPECT_FALSE(queue.IsMainThread());
        queue.Bind();
        EXPECT_TRUE(queue.IsMainThread());
    }).join();
    EXPECT_FALSE(queue.IsMainThread());
}

} // namespace
} // namespace vagrel

// Compares a drain of an empty queue, as in inner loops, with the lock that a queue without a flag would need each
// time.
#include <VyrPlatform/process/LinuxMessageQueue.h>
#include <VyrPlatform/process/MessageQueue.h>

#include <benchmark/benchmark.h>

#include <future>
#include <mutex>
#include <thread>

using namespace VyrPlatform::MessageQueue;

namespace {

void IdleQueue(benchmark::State& state)
{
    static const Poster poster = Poster::ForCallingThread();
    for (auto _ : state)
        benchmark::DoNotOptimize(DrainOne());
}

void Lock(benchmark::State& state)
{
    static std::mutex mutex;
    for (auto _ : state)
        const std::lock_guard lock(mutex);
}

} // namespace

BENCHMARK(IdleQueue);
BENCHMARK(Lock);

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    // With a second thread locks are real, as in every program that posts.
    std::promise<void> end;
    std::thread other([wait = end.get_future()] { wait.wait(); });
    benchmark::RunSpecifiedBenchmarks();
    end.set_value();
    other.join();
    return 0;
}

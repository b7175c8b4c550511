// What a drain costs that finds nothing to do, as inner loops call it: on a thread without a queue, on one with a
// queue, and, as the reference, the lock that a queue would have to take to look.
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
    // Another thread lives meanwhile, as in every program that posts; locks are real then.
    std::promise<void> end;
    std::thread other([wait = end.get_future()] { wait.wait(); });
    benchmark::RunSpecifiedBenchmarks();
    end.set_value();
    other.join();
    return 0;
}

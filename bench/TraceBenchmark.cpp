// The cost of a trace statement whose threshold test fails, which is the only
// hot path of logging: beside spdlog's disabled statement and beside the bare
// relaxed load that the test is meant to cost.
#include <benchmark/benchmark.h>
#include <spdlog/sinks/null_sink.h>
#include <spdlog/spdlog.h>

#include <atomic>

#include "vorn_std/VornStd.h"

namespace {

std::atomic<uint32_t> bareFlag{3};

void BM_BareRelaxedLoad(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(bareFlag.load(std::memory_order_relaxed));
    }
}
BENCHMARK(BM_BareRelaxedLoad);

void BM_IsThresholdOn(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(vorn_std::StaticLog::isThresholdOn(vorn_std::TRACE));
    }
}
BENCHMARK(BM_IsThresholdOn);

void BM_VornDisabledTraceStatement(benchmark::State& state) {
    int value = 0;
    for (auto _ : state) {
        if (vorn_std::__internal_trace_on()) {
            vorn_std::__internal_trace(L"bench::loop", L"TraceBenchmark.cpp", __LINE__,
                                       L"value %d", value);
        }
        benchmark::DoNotOptimize(++value);
    }
}
BENCHMARK(BM_VornDisabledTraceStatement);

void BM_SpdlogDisabledDebugStatement(benchmark::State& state) {
    auto logger = std::make_shared<spdlog::logger>("bench", std::make_shared<spdlog::sinks::null_sink_mt>());
    logger->set_level(spdlog::level::info);
    spdlog::set_default_logger(logger);
    int value = 0;
    for (auto _ : state) {
        SPDLOG_DEBUG("value {}", value);
        benchmark::DoNotOptimize(++value);
    }
    spdlog::set_default_logger(nullptr);
}
BENCHMARK(BM_SpdlogDisabledDebugStatement);

}  // namespace

BENCHMARK_MAIN();

// An enabled INFO statement formatted into a full line and dropped: through
// LoggerBase, its filter and VornLogLayout, beside spdlog with the equivalent
// pattern into a sink that formats each line and drops it (spdlog's own
// null_sink skips the formatter, so it is not the fair peer).
#include <benchmark/benchmark.h>
#include <spdlog/sinks/base_sink.h>
#include <spdlog/spdlog.h>

#include <mutex>

#include "internal/StaticLogControl.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;

namespace {

class DiscardingAppender : public ILogAppender {
public:
    DiscardingAppender()
        : ILogAppender(std::make_shared<LogFileFilter>(), std::make_shared<VornLogLayout>()) {}
    Configurable* newInstance(const Properties&) override { return new DiscardingAppender(); }
    size_t characters = 0;

protected:
    void localAppend(const std::wstring& line) override { characters += line.size(); }
    void localAppend(const LogEvent&) override {}
};

template <typename Mutex>
class FormattingNullSink : public spdlog::sinks::base_sink<Mutex> {
public:
    size_t characters = 0;

protected:
    void sink_it_(const spdlog::details::log_msg& message) override {
        spdlog::memory_buf_t line;
        this->formatter_->format(message, line);
        characters += line.size();
    }
    void flush_() override {}
};

void BM_VornLoggerBaseInfoLine(benchmark::State& state) {
    LoggerBase logger;
    auto appender = std::make_shared<DiscardingAppender>();
    logger.addAppender(appender);
    const std::wstring function = L"bench::Service::handle";
    const std::wstring message = L"Processed request 42 for client alpha.";
    const std::wstring empty;
    for (auto _ : state) {
        logger.log(INFO, function, message, empty, empty, 7, empty, 0);
    }
    benchmark::DoNotOptimize(appender->characters);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_VornLoggerBaseInfoLine);

// The whole road of a host's statement: format arguments, the static log's
// locks, the logger, the layout.
void BM_VornStaticLogInfoStatement(benchmark::State& state) {
    auto appender = std::make_shared<DiscardingAppender>();
    vorn_std_internal::StaticLogControl::initInstance(L"Bench", {appender}, INFO);
    for (auto _ : state) {
        ContextLogMessage::log(INFO, L"bench::Service::handle", L"Bench", L"", 7, L"", 0,
                               L"Processed request %d for client %ls.", 42, L"alpha");
    }
    benchmark::DoNotOptimize(appender->characters);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_VornStaticLogInfoStatement);

void BM_SpdlogInfoLine(benchmark::State& state) {
    auto sink = std::make_shared<FormattingNullSink<std::mutex>>();
    spdlog::logger logger("bench", sink);
    logger.set_pattern("%Y-%m-%d %H:%M:%S:%e %l %v");
    logger.set_level(spdlog::level::info);
    for (auto _ : state) {
        logger.info("Processed request {} for client {}.", 42, "alpha");
    }
    benchmark::DoNotOptimize(sink->characters);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_SpdlogInfoLine);

}  // namespace

BENCHMARK_MAIN();

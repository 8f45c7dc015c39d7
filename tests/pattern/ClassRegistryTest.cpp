#include <gtest/gtest.h>

#include <memory>

#include "support/DebugCapture.h"
#include "support/Failures.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;

namespace {

class Prototype : public Configurable {
public:
    Configurable* newInstance(const Properties& properties) override {
        auto* made = new Prototype();
        made->name = properties.count(L"name") ? properties.at(L"name") : L"";
        return made;
    }
    std::wstring name;
};

void expectRefused(const std::wstring& key, const std::shared_ptr<Object>& object,
                   const std::wstring& text) {
    EXPECT_EQ(text, vorn_test::messageOf<VornIllegalArgumentException>(
                        [&] { Class::getInstance().registerClass(key, object); }));
}

}  // namespace

TEST(ClassRegistry, RefusesEmptyDuplicateAndNullWithTheirTexts) {
    vorn_test::DebugCapture capture;
    auto prototype = std::make_shared<Prototype>();
    expectRefused(L"", prototype, L"Specified key is invalid: ");
    Class::getInstance().registerClass(L"test.Unique", prototype);
    expectRefused(L"test.Unique", std::make_shared<Prototype>(),
                  L"Object already exists for key: test.Unique");
    expectRefused(L"test.Null", nullptr, L"Object value is NULL.");
    const auto lines = capture.lines();
    ASSERT_EQ(3u, lines.size());
    EXPECT_NE(std::string::npos, lines[0].find("] : Specified key is invalid: "));
    EXPECT_NE(std::string::npos, lines[1].find("] : Object already exists for key: test.Unique"));
}

TEST(ClassRegistry, NoExVariantKeepsTheFirstObject) {
    auto first = std::make_shared<Prototype>();
    first->name = L"first";
    EXPECT_TRUE(Class::getInstance().registerClassNoEx(L"test.Twice", first));
    EXPECT_FALSE(
        Class::getInstance().registerClassNoEx(L"test.Twice", std::make_shared<Prototype>()));
    EXPECT_EQ(L"first", Class::getInstance().lookup<Prototype>(L"test.Twice")->name);
    EXPECT_FALSE(Class::getInstance().registerClassNoEx(L"", first));
}

TEST(ClassRegistry, LookupOfAnotherTypeOrAnAbsentKeyIsEmpty) {
    Class::getInstance().registerClass(L"test.Typed", std::make_shared<Prototype>());
    EXPECT_EQ(nullptr, Class::getInstance().lookup<ILogAppender>(L"test.Typed"));
    EXPECT_EQ(nullptr, Class::getInstance().lookup<Configurable>(L"test.Absent"));
    EXPECT_NE(nullptr, Class::getInstance().lookup<Configurable>(L"test.Typed"));
    EXPECT_EQ(L"Class{}", Class::getInstance().toString());
}

// The host sees the registry the library filled at load: one instance per process.
TEST(ClassRegistry, LibraryClassesStandUnderTheirDottedNamesAndMakeObjects) {
    for (const wchar_t* name :
         {L"vorn_std.DebugFileFilter", L"vorn_std.LogFileFilter", L"vorn_std.VornLogLayout"}) {
        EXPECT_NE(nullptr, Class::getInstance().lookup<Configurable>(name)) << name;
    }
    auto prototype = Class::getInstance().lookup<Configurable>(L"vorn_std.VornLogLayout");
    std::unique_ptr<Configurable> debugLayout(prototype->newInstance({{L"debug", L"true"}}));
    std::unique_ptr<Configurable> plainLayout(prototype->newInstance({{L"debug", L"TRUE"}}));
    EXPECT_TRUE(dynamic_cast<VornLogLayout&>(*debugLayout).isDebug());
    EXPECT_FALSE(dynamic_cast<VornLogLayout&>(*plainLayout).isDebug());
    auto filter = Class::getInstance().lookup<ILogEventFilter>(L"vorn_std.LogFileFilter");
    std::unique_ptr<Configurable> made(filter->newInstance({}));
    EXPECT_NE(nullptr, dynamic_cast<LogFileFilter*>(made.get()));
}

TEST(SingletonManagerAccess, GivesOneManagerAndTheHostsLock) {
    EXPECT_EQ(&SingletonManager::getInstance(), &SingletonManager::getInstance());
    ASSERT_NE(nullptr, SingletonManager::getSingletonLock());
    EXPECT_EQ(L"ReadWriteLock{maxReaders='64'}", SingletonManager::getSingletonLock()->toString());
}

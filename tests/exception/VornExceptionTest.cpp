#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <typeinfo>

#include "support/DebugCapture.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;

namespace {

struct FamilyMember {
    std::function<VornException*()> make;
    const wchar_t* className;
    bool derivesFromBase;
};

template <typename T, typename Base>
FamilyMember member(const wchar_t* name) {
    return {[] { return new T(L"m", 7); }, name,
            std::is_base_of_v<Base, T> && !std::is_same_v<Base, T>};
}

}  // namespace

TEST(VornExceptionFamily, EachClassHasItsJavaNameAndBaseAndClonesToItself) {
    const FamilyMember family[] = {
        member<VornException, Object>(L"com.kelmoran.exception.VornException"),
        member<VornIllegalArgumentException, VornException>(
            L"com.kelmoran.exception.VornIllegalArgumentException"),
        member<VornIllegalStateException, VornException>(
            L"com.kelmoran.exception.VornIllegalStateException"),
        member<VornIOException, VornException>(L"com.kelmoran.exception.VornIOException"),
        member<VornConnectException, VornIOException>(
            L"com.kelmoran.util.connection.VornConnectException"),
        member<VornObjectNotFoundException, VornException>(
            L"com.kelmoran.exception.VornObjectNotFoundException"),
        member<VornRuntimeException, VornException>(L"com.kelmoran.exception.VornRuntimeException"),
        member<VornUnknownException, VornRuntimeException>(
            L"com.kelmoran.exception.VornUnknownException"),
        member<VornAccessException, VornException>(L"com.kelmoran.exception.VornAccessException"),
        member<VornUnhandledException, VornException>(
            L"com.kelmoran.exception.VornUnhandledException"),
        member<VornTimeoutException, VornException>(L"com.kelmoran.exception.VornTimeoutException"),
        member<VornOutOfResourcesException, VornException>(
            L"com.kelmoran.exception.VornOutOfResourcesException"),
        member<VornUnsupportedOperationException, VornException>(
            L"com.kelmoran.exception.VornUnsupportedOperationException"),
        member<VornBufferOverflowException, VornException>(
            L"com.kelmoran.exception.VornBufferOverflowException"),
        member<VornBufferUnderflowException, VornException>(
            L"com.kelmoran.exception.VornBufferUnderflowException"),
        member<VornJNIException, VornException>(L"com.kelmoran.exception.VornJNIException"),
        member<VornInterruptedException, VornException>(
            L"com.kelmoran.util.concurrency.VornInterruptedException"),
        member<VornWaitObjectDestroyedException, VornException>(
            L"com.kelmoran.util.concurrency.VornWaitObjectDestroyedException"),
        member<VornAbandonedException, VornException>(
            L"com.kelmoran.util.concurrency.VornAbandonedException"),
        member<VornDeadlockException, VornException>(
            L"com.kelmoran.util.concurrency.VornDeadlockException"),
        member<VornCancellationException, VornException>(
            L"com.kelmoran.util.thread.VornCancellationException"),
        member<VornExecutionException, VornException>(
            L"com.kelmoran.util.thread.VornExecutionException"),
        member<VornRejectedExecutionException, VornException>(
            L"com.kelmoran.util.thread.VornRejectedExecutionException"),
        member<VornBackingStoreException, VornException>(
            L"com.kelmoran.util.prefs.VornBackingStoreException"),
        member<VornInvalidPreferencesFormatException, VornException>(
            L"com.kelmoran.util.prefs.VornInvalidPreferencesFormatException"),
        member<VornXmlException, VornException>(L"com.kelmoran.xml.VornXmlException"),
    };
    EXPECT_EQ(26u, std::size(family));
    for (const FamilyMember& entry : family) {
        std::unique_ptr<VornException> original(entry.make());
        std::unique_ptr<VornException> clone(original->newInstance());
        EXPECT_EQ(entry.className, original->getClassName());
        EXPECT_TRUE(entry.derivesFromBase) << original->getClassName();
        EXPECT_EQ(typeid(*original), typeid(*clone)) << original->getClassName();
        EXPECT_EQ(entry.className, clone->getClassName());
        EXPECT_EQ(7, clone->getErrNum());
        EXPECT_EQ(L"m", clone->getMessage());
    }
}

TEST(VornExceptionFamily, ConcreteClassNameSurvivesCatchByBase) {
    try {
        throw VornConnectException(L"refused");
    } catch (const VornIOException& e) {
        EXPECT_EQ(L"com.kelmoran.util.connection.VornConnectException", e.getClassName());
    }
}

TEST(VornExceptionConstructors, ErrorNumberComesFromTheFormOrTheCause) {
    const VornIOException cause(L"inner", 42);
    EXPECT_EQ(0, VornException(L"a").getErrNum());
    EXPECT_EQ(42, VornException(L"a", cause).getErrNum());
    EXPECT_EQ(5, VornException(L"a", 5).getErrNum());
    EXPECT_EQ(5, VornException(L"a", 5, cause).getErrNum());
    EXPECT_EQ(L"", VornException().getMessage());
}

TEST(VornExceptionMessage, EmptyOuterMessageShowsTheNestedOne) {
    const VornException e(L"", VornException(L"inner"));
    EXPECT_EQ(L"inner", e.getMessage());
}

TEST(VornExceptionMessage, ChainReadsOutermostFirstThroughAllLevels) {
    const VornException innermost(L"disk full");
    const VornIOException middle(L"write failed", innermost);
    const VornIllegalStateException outer(L"save failed", middle);
    EXPECT_EQ(L"save failed: write failed: disk full", outer.getMessage());
}

TEST(VornExceptionToString, TwoLevelChainRepeatsTheNestedMessage) {
    const VornIOException e(L"outer", VornException(L"inner"));
    EXPECT_EQ(
        L"com.kelmoran.exception.VornIOException: outer: inner; --> nested "
        L"com.kelmoran.exception.VornException: inner",
        e.toString());
}

TEST(VornExceptionToString, ThreeLevelChain) {
    const VornException e(L"a", VornIOException(L"b", VornTimeoutException(L"c")));
    EXPECT_EQ(
        L"com.kelmoran.exception.VornException: a: b: c; --> nested "
        L"com.kelmoran.exception.VornIOException: b: c; --> nested "
        L"com.kelmoran.exception.VornTimeoutException: c",
        e.toString());
}

TEST(VornExceptionStackTrace, ChainOfThreeIsTwoMarkers) {
    const VornException e(L"a", VornException(L"b", VornException(L"c")));
    EXPECT_EQ(L"-------- nested by: -------- nested by: ", e.getStackTraceString());
    EXPECT_EQ(L"", VornException(L"alone").getStackTraceString());
}

TEST(VornExceptionNested, EachCallHandsOutAFreshCopy) {
    const VornException e(L"outer", VornIOException(L"inner", 3));
    std::unique_ptr<VornException> first(e.getNestedException());
    std::unique_ptr<VornException> second(e.getNestedException());
    ASSERT_NE(nullptr, first);
    EXPECT_NE(first.get(), second.get());
    EXPECT_EQ(L"com.kelmoran.exception.VornIOException", first->getClassName());
    EXPECT_EQ(3, second->getErrNum());
    EXPECT_EQ(nullptr, VornException(L"no cause").getNestedException());
}

TEST(VornExceptionKeyValues, ListedInKeyOrderWithoutBlanks) {
    VornException e(L"x");
    EXPECT_EQ(L"KeyValues{}", e.getKeyValuesString());
    e.setValue(L"path", L"/tmp/a");
    e.setValue(L"code", L"7");
    e.setValue(L"path", L"/tmp/b");
    EXPECT_EQ(L"KeyValues{code=7,path=/tmp/b}", e.getKeyValuesString());
    EXPECT_EQ(L"7", e.getValue(L"code"));
    EXPECT_EQ(L"", e.getValue(L"absent"));
}

TEST(VornExceptionKeyValues, LostOnCopyCloneAndThrowByValue) {
    VornIOException e(L"x", VornException(L"cause"));
    e.setValue(L"k", L"v");
    const VornIOException copy(e);
    std::unique_ptr<VornException> clone(e.newInstance());
    EXPECT_EQ(L"", copy.getValue(L"k"));
    EXPECT_EQ(L"KeyValues{}", clone->getKeyValuesString());
    EXPECT_EQ(e.toString(), copy.toString());
    try {
        throw e;
    } catch (const VornException& caught) {
        EXPECT_EQ(L"", caught.getValue(L"k"));
    }
}

TEST(VornExceptionAssignment, CopiesMessageNumberCauseAndKeyValues) {
    VornException source(L"source", 9, VornIOException(L"cause"));
    source.setValue(L"k", L"v");
    VornException target(L"target", VornException(L"old cause"));
    target = source;
    EXPECT_EQ(L"source: cause", target.getMessage());
    EXPECT_EQ(9, target.getErrNum());
    EXPECT_EQ(L"v", target.getValue(L"k"));
    EXPECT_EQ(source.toString(), target.toString());
}

TEST(VornExceptionAssignment, AssignedCauseOutlivesItsSource) {
    VornException target(L"t");
    {
        const VornException source(L"s", VornIOException(L"cause"));
        target = source;
    }
    EXPECT_EQ(L"s: cause", target.getMessage());
}

TEST(VornExceptionLog, DebugLineCarriesTextAndTrace) {
    vorn_test::DebugCapture capture;
    const VornException e(L"outer", VornException(L"inner"));
    e.logDebug(L"vorn_std::Test::run");
    e.logCall(L"vorn_std::Test::run");  // below the unconfigured threshold
    const auto lines = capture.lines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_NE(std::string::npos, lines[0].find(
        "VornException.cpp[", 0)) << lines[0];
    EXPECT_NE(std::string::npos,
              lines[0].find("] : com.kelmoran.exception.VornException: outer: inner; --> nested "
                            "com.kelmoran.exception.VornException: inner Stack trace "
                            "<-------- nested by: >."))
        << lines[0];
}

TEST(ObjectText, RootAndGuardsPrintTheirNames) {
    EXPECT_EQ(L"Object{}", Object().toString());
    ReadWriteLock lock(3);
    {
        struct Lockable {
            int held = 0;
            void lock() { ++held; }
            void unlock() { --held; }
        } lockable;
        AutoLock<Lockable> guard(&lockable);
        EXPECT_EQ(1, lockable.held);
        EXPECT_EQ(L"AutoLock{}", guard.toString());
    }
    EXPECT_EQ(L"ReadWriteLock{maxReaders='3'}", lock.toString());
}

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "internal/ByteBufferCapacity.h"
#include "internal/PlatformText.h"
#include "support/DebugCapture.h"
#include "vorn_std/VornStd.h"

using namespace vorn_std;
using namespace std::string_literals;

namespace {

constexpr const wchar_t* IllegalArgument = L"com.kelmoran.exception.VornIllegalArgumentException";
constexpr const wchar_t* Underflow = L"com.kelmoran.exception.VornBufferUnderflowException";
constexpr const wchar_t* Overflow = L"com.kelmoran.exception.VornBufferOverflowException";

std::string blockOf(ByteBuffer& buffer) {
    return std::string(buffer.array(), static_cast<size_t>(buffer.getCapacity()));
}

std::shared_ptr<ByteBuffer> bufferWith(const std::string& bytes) {
    auto buffer = ByteBuffer::allocate(static_cast<long>(bytes.size()));
    buffer->put(bytes.data(), static_cast<long>(bytes.size()));
    buffer->flip();
    return buffer;
}

// What a call threw: class, message, and the message of the nested cause.
struct Failure {
    std::wstring className;
    std::wstring message;
    std::wstring nested;
};

// A message with a cause reads "<own text>: <cause's message>".
void expectFailure(const Failure& expected, const std::function<void()>& call) {
    Failure actual{L"none", L"", L""};
    try {
        call();
    } catch (const VornException& e) {
        std::unique_ptr<VornException> nested(e.getNestedException());
        actual = {e.getClassName(), e.getMessage(), nested ? nested->getMessage() : L""};
    }
    const std::wstring message =
        expected.nested.empty() ? expected.message : expected.message + L": " + expected.nested;
    EXPECT_EQ(expected.className, actual.className) << testing::PrintToString(message);
    EXPECT_EQ(message, actual.message);
    EXPECT_EQ(expected.nested, actual.nested) << testing::PrintToString(message);
}

}  // namespace

// One buffer through a sequence of moves, with the state after each.
TEST(Buffer, PositionLimitAndMarkFollowJava) {
    const auto buffer = ByteBuffer::allocate(8);
    Buffer& b = *buffer;
    const std::pair<std::function<void()>, std::wstring> steps[] = {
        {[] {}, L"capacity=8,limit=8,pos=0,mark=-1"},
        {[&] { b.setPosition(3); b.reset(); }, L"capacity=8,limit=8,pos=3,mark=-1"},
        {[&] { b.setMark(); b.setPosition(5); }, L"capacity=8,limit=8,pos=5,mark=3"},
        {[&] { b.reset(); }, L"capacity=8,limit=8,pos=3,mark=3"},
        {[&] { b.setPosition(3); }, L"capacity=8,limit=8,pos=3,mark=3"},
        {[&] { b.setPosition(2); }, L"capacity=8,limit=8,pos=2,mark=-1"},
        {[&] { b.setMark(); b.setPosition(5); b.setLimit(4); }, L"capacity=8,limit=4,pos=4,mark=2"},
        {[&] { b.setLimit(2); }, L"capacity=8,limit=2,pos=2,mark=2"},
        {[&] { b.setLimit(1); }, L"capacity=8,limit=1,pos=1,mark=-1"},
        {[&] { b.clear(); }, L"capacity=8,limit=8,pos=0,mark=-1"},
        {[&] { b.setPosition(6); b.setMark(); b.flip(); }, L"capacity=8,limit=6,pos=0,mark=-1"},
        {[&] { b.setPosition(2); b.setMark(); b.rewind(); }, L"capacity=8,limit=6,pos=0,mark=-1"},
    };
    for (const auto& [step, state] : steps) {
        step();
        EXPECT_EQ(L"Buffer{" + state + L"}", b.Buffer::toString());
    }
    EXPECT_EQ(6, b.remaining());
    b.setPosition(6);
    EXPECT_FALSE(b.hasRemaining());
    EXPECT_EQ(L"ByteBuffer{Buffer{capacity=8,limit=6,pos=6,mark=-1},order=0}", b.toString());
}

// Checks that throw VornIllegalArgumentException as they are, and change nothing.
TEST(ByteBuffer, ArgumentChecksThrowTheirTexts) {
    vorn_test::DebugCapture capture;
    const auto b = ByteBuffer::allocate(8);
    b->setLimit(6);
    char bytes[8] = {};
    wchar_t wide[8] = {};
    const std::pair<std::function<void()>, std::wstring> cases[] = {
        {[] { ByteBuffer::allocate(1000000001); },
         L"Capacity value 1000000001 is outside minimum of 0 and maximum of 1000000000."},
        {[] { ByteBuffer::allocate(-1); },
         L"Capacity value -1 is outside minimum of 0 and maximum of 1000000000."},
        {[&] { b->setLimit(9); }, L"Limit value 9 is outside minimum of 0 and maximum of 8."},
        {[&] { b->setLimit(-1); }, L"Limit value -1 is outside minimum of 0 and maximum of 8."},
        {[&] { b->setPosition(7); }, L"Position value 7 is outside minimum of 0 and maximum of 6."},
        {[&] { b->setOrder(static_cast<Endian>(2)); }, L"Order value 2 is invalid."},
        {[&] { b->put(*b); }, L"Attempting to put to same buffer as source."},
        {[&] { b->getByteArray(-1); }, L"Length value -1 is below minimum of 0."},
        // The bulk forms, in the order of their checks.
        {[&] { b->get(static_cast<char*>(nullptr), -1, -1, -1); },
         L"Destination buffer value is NULL."},
        {[&] { b->put(static_cast<const wchar_t*>(nullptr), 1); }, L"Source buffer value is NULL."},
        {[&] { b->get(bytes, -1, -1, -1); }, L"Size value -1 is below minimum of 0."},
        {[&] { b->put(bytes, 1, -1, -1); }, L"Offset value -1 is below minimum of 0."},
        {[&] { b->get(wide, 1, 0, -1); }, L"Length value -1 is below minimum of 0."},
        {[&] { b->put(wide, 2, 3, 0); }, L"Size value 2 is below minimum of 3."},
        {[&] { b->get(bytes, 4, 1, 4); }, L"Buffer size value 3 is below minimum of 4."},
    };
    std::vector<std::string> messages;
    for (const auto& [call, text] : cases) {
        expectFailure({IllegalArgument, text, L""}, call);
        messages.push_back(vorn_std_internal::toPlatformUtf8(text));
    }
    EXPECT_EQ(messages, capture.messages());
    EXPECT_EQ(L"ByteBuffer{Buffer{capacity=8,limit=6,pos=0,mark=-1},order=0}", b->toString());
}

TEST(ByteBuffer, MaximumCapacityTextFallsBackOnTheDefault) {
    EXPECT_EQ(1000000000, ByteBuffer::getMaximumCapacity());
    const std::pair<std::wstring, long> cases[] = {
        {L" 128\n", 128},   {L"+5", 5},           {L"0", 0},          {L"2147483647", 2147483647},
        {L"", 1000000000}, {L"12abc", 1000000000}, {L"-5", 1000000000}, {L"2147483648", 1000000000},
    };
    for (const auto& [text, maximum] : cases) {
        EXPECT_EQ(maximum, vorn_std_internal::parseMaximumCapacity(text)) << text;
    }
}

// A new buffer is big-endian whatever the machine (little-endian here); both
// orders for every width, relative and absolute.
TEST(ByteBuffer, TypedValuesInBothOrders) {
    const std::pair<Endian, std::string> cases[] = {
        {Endian::Big, "\xAB\x01\x02\x01\x02\x03\x04\x01\x02\x03\x04\x05\x06\x07\x08\xFF\xFE"},
        {Endian::Little, "\xAB\x02\x01\x04\x03\x02\x01\x08\x07\x06\x05\x04\x03\x02\x01\xFE\xFF"},
    };
    EXPECT_EQ(Endian::Little, getSystemEndianType());
    for (const auto& [order, bytes] : cases) {
        const auto b = ByteBuffer::allocate(17);
        b->setOrder(order);
        b->put('\xAB');
        b->putShort(0x0102);
        b->putInt(0x01020304);
        b->putLongLong(0x0102030405060708LL);
        b->putShort(-2);
        EXPECT_EQ(bytes, blockOf(*b));
        b->flip();
        EXPECT_EQ('\xAB', b->get());
        EXPECT_EQ(0x0102, b->getShort());
        EXPECT_EQ(0x01020304, b->getInt());
        EXPECT_EQ(0x0102030405060708LL, b->getLongLong());
        EXPECT_EQ(-2, b->getShort());
        EXPECT_EQ(0x0102, b->getShort(1));
        EXPECT_EQ(0x01020304, b->getInt(3));
        EXPECT_EQ(0x0102030405060708LL, b->getLongLong(7));

        const auto a = ByteBuffer::allocate(17);
        a->setOrder(order);
        a->put(0, '\xAB');
        a->putShort(1, 0x0102);
        a->putInt(3, 0x01020304);
        a->putLongLong(7, 0x0102030405060708LL);
        a->putShort(15, -2);
        EXPECT_EQ(bytes, blockOf(*a));
        EXPECT_EQ(0, a->getPosition());
    }
}

TEST(ByteBuffer, BulkFormsPlaceBytesAndSixteenBitUnits) {
    const auto b = ByteBuffer::allocate(4);
    b->put("xxabcx", 6, 2, 3);
    EXPECT_EQ("abc\0"s, blockOf(*b));
    b->flip();
    char out[5] = {'.', '.', '.', '.', '.'};
    b->get(out, 5, 1, 2);
    EXPECT_EQ(".ab..", std::string(out, 5));

    const std::pair<Endian, std::string> cases[] = {
        {Endian::Big, "\x00\x41\x20\xAC\xD8\x3D"s},
        {Endian::Little, "\x41\x00\xAC\x20\x3D\xD8"s},
    };
    const wchar_t text[] = {L'A', 0x20AC, 0xD83D};
    for (const auto& [order, bytes] : cases) {
        const auto w = ByteBuffer::allocate(6);
        w->setOrder(order);
        w->put(text, 3);
        EXPECT_EQ(bytes, blockOf(*w));
        w->flip();
        wchar_t back[4] = {L'.', L'.', L'.', L'.'};
        w->get(back, 4, 1, 3);
        EXPECT_EQ((std::wstring{L'.', L'A', 0x20AC, 0xD83D}), std::wstring(back, 4));
    }

    const auto source = bufferWith("abcd");
    source->get();
    const auto target = ByteBuffer::allocate(5);
    target->put('>');
    target->put(*source);
    EXPECT_EQ(">bcd\0"s, blockOf(*target));
    EXPECT_EQ(4, target->getPosition());
    EXPECT_EQ(4, source->getPosition());
    source->setPosition(1);
    EXPECT_EQ("bc", source->getByteArray(2)->toString());
    EXPECT_EQ(3, source->getPosition());
}

// Each relative failure replaces the check's exception and keeps it as the cause.
TEST(ByteBuffer, RelativeFailuresAreUnderflowOrOverflow) {
    char bytes[4] = {};
    wchar_t wide[2] = {};
    const std::wstring noSpace = L"Insufficient space in buffer to add input";
    const std::wstring belowDesired = L"Remaining data length is below desired length";
    const auto remaining = [](int have, int want) {
        return L"Remaining data length value " + std::to_wstring(have) + L" is below minimum of " +
               std::to_wstring(want) + L".";
    };
    const std::wstring position = L"Position value 0 is above maximum of -1.";
    struct Case {
        long capacity;
        std::function<void(ByteBuffer&)> call;
        Failure failure;
    };
    const Case cases[] = {
        {0, [](ByteBuffer& b) { b.get(); }, {Underflow, L"Position is above limit", position}},
        {0, [](ByteBuffer& b) { b.put('x'); }, {Overflow, L"Buffer has reached limit", position}},
        {1, [](ByteBuffer& b) { b.getShort(); },
         {Underflow, L"Remaining data length is below 2", remaining(1, 2)}},
        {3, [](ByteBuffer& b) { b.getInt(); },
         {Underflow, L"Remaining data length is below 4", remaining(3, 4)}},
        {7, [](ByteBuffer& b) { b.getLongLong(); },
         {Underflow, L"Remaining data length is below 8", remaining(7, 8)}},
        {1, [](ByteBuffer& b) { b.putShort(1); }, {Overflow, noSpace, remaining(1, 2)}},
        {3, [](ByteBuffer& b) { b.putInt(1); }, {Overflow, noSpace, remaining(3, 4)}},
        {7, [](ByteBuffer& b) { b.putLongLong(1); }, {Overflow, noSpace, remaining(7, 8)}},
        {2, [&](ByteBuffer& b) { b.get(bytes, 3); }, {Underflow, belowDesired, remaining(2, 3)}},
        {3, [&](ByteBuffer& b) { b.get(wide, 2); }, {Underflow, belowDesired, remaining(3, 4)}},
        {2, [&](ByteBuffer& b) { b.put(bytes, 3); }, {Overflow, noSpace, remaining(2, 3)}},
        {3, [&](ByteBuffer& b) { b.put(wide, 2); }, {Overflow, noSpace, remaining(3, 4)}},
        {2, [](ByteBuffer& b) { b.put(*bufferWith("abc")); },
         {Overflow, L"Remaining data length is below input buffer size", remaining(2, 3)}},
        {2, [](ByteBuffer& b) { b.getByteArray(3); }, {Underflow, belowDesired, remaining(2, 3)}},
    };
    for (const Case& c : cases) {
        const auto buffer = ByteBuffer::allocate(c.capacity);
        expectFailure(c.failure, [&] { c.call(*buffer); });
        EXPECT_EQ(0, buffer->getPosition());
    }
}

// Absolute access allows index limit - width + 1: the last byte may be the one
// at the limit, which is the hidden spare byte when the limit is the capacity.
TEST(ByteBuffer, AbsoluteIndexReachesTheByteAtTheLimit) {
    const auto outside = [](long index, long highest) {
        return L"Index value " + std::to_wstring(index) +
               L" is outside minimum of 0 and maximum of " + std::to_wstring(highest) + L".";
    };
    struct Case {
        long capacity;
        long limit;
        std::function<void(ByteBuffer&)> call;
        std::wstring error;  // empty: the call passes
    };
    const Case cases[] = {
        {0, 0, [](ByteBuffer& b) { EXPECT_EQ(0, b.get(0)); }, L""},
        {0, 0, [](ByteBuffer& b) { b.get(1); }, outside(1, 0)},
        {0, 0, [](ByteBuffer& b) { b.getInt(0); }, outside(0, -3)},
        {8, 8, [](ByteBuffer& b) { EXPECT_EQ(0, b.get(8)); }, L""},
        {8, 8, [](ByteBuffer& b) { b.get(-1); }, outside(-1, 8)},
        {8, 8, [](ByteBuffer& b) { EXPECT_EQ(0, b.getShort(7)); }, L""},
        {8, 8, [](ByteBuffer& b) { b.putShort(8, 1); }, outside(8, 7)},
        {8, 8, [](ByteBuffer& b) { EXPECT_EQ(0, b.getInt(5)); }, L""},
        {8, 8, [](ByteBuffer& b) { b.getInt(6); }, outside(6, 5)},
        {8, 8, [](ByteBuffer& b) { EXPECT_EQ(0, b.getLongLong(1)); }, L""},
        {8, 8, [](ByteBuffer& b) { b.putLongLong(2, 1); }, outside(2, 1)},
        {8, 4, [](ByteBuffer& b) { b.getShort(4); }, outside(4, 3)},
    };
    for (const Case& c : cases) {
        const auto buffer = ByteBuffer::allocate(c.capacity);
        buffer->setLimit(c.limit);
        expectFailure({c.error.empty() ? L"none" : IllegalArgument, c.error, L""},
                      [&] { c.call(*buffer); });
    }
    const auto full = ByteBuffer::allocate(2);
    full->putShort(1, 0x4142);
    EXPECT_EQ('B', full->get(2));
    EXPECT_EQ("\0A"s, blockOf(*full));
}

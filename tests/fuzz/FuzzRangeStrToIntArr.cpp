// Number ranges such as "1-3,7" marked in an int array: arbitrary text and
// array sizes, where no index below 0 or beyond the array may be written and
// no number may overflow. The first two bytes choose the array's size.
#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>

#include "FuzzCheck.h"
#include "vorn_std/legacy/LegacyFunctions.h"

using VornStd::RangeStrToIntArr;

FUZZ_QUIET_DEBUG_OUTPUT()

namespace {

constexpr int LargestMaxIndex = 1023;
constexpr int Garbage = 7;

// A heap block of exactly maxIndex + 1 ints, so that the address sanitizer
// sees a write on either side of it.
std::unique_ptr<int[]> markedArray(const std::wstring& text, int maxIndex, int& count) {
    std::unique_ptr<int[]> array(new int[static_cast<size_t>(maxIndex) + 1]);
    std::fill(array.get(), array.get() + maxIndex + 1, Garbage);
    count = RangeStrToIntArr(text, array.get(), maxIndex);
    return array;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    int maxIndex = 64;
    if (size >= 2) {
        maxIndex = (data[0] | data[1] << 8) % (LargestMaxIndex + 1);
        data += 2;
        size -= 2;
    }
    const std::wstring text(data, data + size);
    int count = 0;
    const std::unique_ptr<int[]> array = markedArray(text, maxIndex, count);

    int ones = 0;
    for (int i = 0; i <= maxIndex; ++i) {
        FUZZ_CHECK(array[i] == 0 || array[i] == 1);
        ones += array[i];
    }
    FUZZ_CHECK(count >= ones);
    FUZZ_CHECK((count == 0) == (ones == 0));

    // Each number that fits an int and the array is marked; without ranges,
    // each counts exactly once.
    int listed = 0;
    for (size_t i = 0; i < text.size();) {
        if (text[i] < L'0' || text[i] > L'9') {
            ++i;
            continue;
        }
        long long number = 0;
        bool fits = true;
        for (; i < text.size() && text[i] >= L'0' && text[i] <= L'9'; ++i) {
            number = fits ? number * 10 + (text[i] - L'0') : number;
            fits = fits && number <= INT32_MAX;
        }
        if (fits && number <= maxIndex) {
            FUZZ_CHECK(array[number] == 1);
            ++listed;
        }
    }
    if (text.find(L'-') == std::wstring::npos) {
        FUZZ_CHECK(count == listed);
    }

    // A smaller array holds the beginning of the same marks.
    int smallerCount = 0;
    const std::unique_ptr<int[]> smaller = markedArray(text, maxIndex / 2, smallerCount);
    for (int i = 0; i <= maxIndex / 2; ++i) {
        FUZZ_CHECK(smaller[i] == array[i]);
    }
    FUZZ_CHECK(smallerCount <= count);
    return 0;
}

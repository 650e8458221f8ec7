#include "test_images.h"

#include <hwy/highway.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <utility>

namespace
{
constexpr std::align_val_t ALIGNMENT{ 64 }; // as image planes

struct AlignedDelete {
    void operator()(uint8_t* bytes) const { operator delete[](bytes, ALIGNMENT); }
};

void Time(benchmark::State& state, const std::function<Work()>& makeWork)
{
    const Work work = makeWork();
    for (auto _ : state) {
        work();
        benchmark::ClobberMemory();
    }
}
}

std::shared_ptr<uint8_t> MakeBytes(size_t count)
{
    return { new (ALIGNMENT) uint8_t[count](), AlignedDelete() };
}

void MakeTestImage(CImage& image, int width, int height, unsigned seed)
{
    std::mt19937 random(seed);
    image.Create(width, height);
    image.CreateAlpha();
    const int count = image.pitch / 2 * height;
    for (int i = 0; i < count;) {
        const bool isTransparent = random() % 3 == 0;
        for (int end = std::min(count, i + 1 + static_cast<int>(random() % 16)); i < end; ++i)
            image.pixels[i] = isTransparent ? COLOR_KEY : static_cast<uint16_t>(random());
    }
    std::generate_n(image.alpha, count, [&random] { return static_cast<uint8_t>(random() % 32); });
    image.opacity = 133;
}

Work CopyBytes(size_t bytes)
{
    return [from = MakeBytes(bytes), to = MakeBytes(bytes), bytes] { std::memcpy(to.get(), from.get(), bytes); };
}

void AddBenchmark(const std::string& name, std::function<Work()> makeWork)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [makeWork = std::move(makeWork)](benchmark::State& state) { Time(state, makeWork); });
}

void AddPlainBenchmark(const std::string& name, std::function<Work()> makeWork)
{
    benchmark::RegisterBenchmark(name.c_str(), [makeWork = std::move(makeWork)](benchmark::State& state) {
        hwy::SetSupportedTargetsForTest(HWY_SCALAR);
        Time(state, makeWork);
        hwy::SetSupportedTargetsForTest(0);
    });
}

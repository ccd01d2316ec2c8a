#include "quiz/rules/RandomSource.h"

namespace {

std::mt19937_64 wellSeeded()
{
    std::random_device device;
    std::seed_seq seeds{device(), device(), device(), device(), device(), device(), device(), device()};
    return std::mt19937_64(seeds);
}

} // namespace

int RandomSource::number(int upper, int lower)
{
    return int((double(upper) - lower + 1) * draw()) + lower;
}

qint16 RandomSource::iGenRndNumber(qint16 upper, qint16 lower)
{
    return qint16(number(upper, lower));
}

SeededRandom::SeededRandom()
    : m_generator(wellSeeded())
{
}

SeededRandom::SeededRandom(quint64 seed)
    : m_generator(seed)
{
}

double SeededRandom::draw()
{
    // The 53 upper bits fill a double's mantissa exactly, so that 1 is never reached.
    return double(m_generator() >> 11) * 0x1.0p-53;
}

#pragma once

#include <QtGlobal>

#include <random>

/// Where random numbers come from. The main program owns the one source and hands it down.
class RandomSource
{
public:
    virtual ~RandomSource() = default;

    /// A uniform number in [0, 1).
    virtual double draw() = 0;

    /// A uniform number in lower..upper, both included.
    int number(int upper, int lower);
    qint16 iGenRndNumber(qint16 upper, qint16 lower);
};

/// The random source of the program: one generator, seeded once.
class SeededRandom : public RandomSource
{
public:
    /// Seeds with the system's own randomness.
    SeededRandom();
    /// Gives the same numbers for the same seed.
    explicit SeededRandom(quint64 seed);

    double draw() override;

private:
    std::mt19937_64 m_generator;
};

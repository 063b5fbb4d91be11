#include "qrand.h"

#if QT_VERSION >= 0x060000

#include <random>

namespace {

thread_local std::minstd_rand numbers;

} // namespace

int qrand()
{
    return int(numbers());
}

void qsrand(uint seed)
{
    numbers.seed(seed);
}

#endif

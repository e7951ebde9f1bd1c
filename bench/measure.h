// The lines in which measures are told.
#pragma once

#include <vector>

namespace bench {

enum class Bar { kAtMost, kAtLeast };

// Prints `measure NAME VALUE BAR ok|missed`, the numbers with at most three decimals. A value that
// is no number is a miss.
void PrintMeasure(const char* name, double value, double bar, Bar kind = Bar::kAtMost);

// The time that a run takes when nothing disturbs it: a tenth of the samples is below; 0 without
// any. What other programs do meanwhile can only lengthen a run.
double Undisturbed(std::vector<double> samples);

}  // namespace bench

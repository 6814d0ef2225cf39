// Private pieces of the trace loggers: the scalar line and the value texts.
#pragma once

#include <string>
#include <string_view>

// A scalar line: the label from column 5, a colon at column 50 and the value
// text from column 55.
void y90_value_line(std::string_view label, std::string_view value);
// The texts of values: "(I20)"; "NaN" or "(1P,E22.15)"; ".TRUE."/".FALSE.".
std::string y90adzn(long long v);
std::string y90agzn(double v);
std::string y90aezn(int v);

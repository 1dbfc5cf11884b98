#pragma once

#include <string>

/// An amount of money: with two decimals, from 10 000 on in big units; empty where those end.
std::string AmountText(double dAmount);

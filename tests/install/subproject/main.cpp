// SPDX-License-Identifier: MIT
// A program beside the library in one project.
#include <vagrel/foundation/Units.h>

#include <iostream>

int main() { std::cout << vagrel::SetValue(1, vagrel::unINCH) << '\n'; }

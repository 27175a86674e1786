#pragma once
#include "zkstring.h"
namespace zarvik {
int charToString(char value, char* out);
void intToString(int value, zkstring& out);
void floatToString(float value, zkstring& out);
void doubleToString(double value, zkstring& out);
void dlongToString(__int64 value, zkstring& out);
}  // namespace zarvik

// Refused: no type named 'jthread'

#include <thread>

std::jthread worker;

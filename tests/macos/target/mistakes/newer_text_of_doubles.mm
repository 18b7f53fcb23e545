// Refused: 'to_chars' is unavailable

#include <charconv>

char* written(double number, char* first, char* last) {
    return std::to_chars(first, last, number).ptr;
}

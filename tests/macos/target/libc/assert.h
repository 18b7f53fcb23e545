// Without a guard: each inclusion follows NDEBUG anew.
#ifdef __cplusplus
extern "C"
    [[noreturn]]
#else
_Noreturn
#endif
    void
    __assert_rtn(const char* function, const char* file, int line, const char* expression);

#undef assert
#ifdef NDEBUG
#define assert(expression) ((void)0)
#else
#define assert(expression) ((expression) ? (void)0 : __assert_rtn(__func__, __FILE__, __LINE__, #expression))
#endif

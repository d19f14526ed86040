/* Loads the library by its path at run time, as programs of other compilers and languages do, and converts a
 * pattern: load LIBRARY */
#include "c/StyleConversionC.h"

#include <stdio.h>
#include <string.h>

#if defined(_WIN32)
#include <windows.h>

static void* opened(const char* path) {
    return (void*)LoadLibraryA(path);
}

static void* found(void* library, const char* name) {
    FARPROC function = GetProcAddress((HMODULE)library, name);
    void* address = NULL;
    memcpy(&address, &function, sizeof address);
    return address;
}
#else
#include <dlfcn.h>

static void* opened(const char* path) {
    return dlopen(path, RTLD_NOW | RTLD_LOCAL);
}

static void* found(void* library, const char* name) {
    return dlsym(library, name);
}
#endif

typedef uint32_t(STYLECONVERSION_CALL* interface_function)(void);
typedef styleconversion_result*(STYLECONVERSION_CALL* convert_function)(const char*, const void*, size_t,
                                                                        const char*,
                                                                        styleconversion_find_file, void*);
typedef int(STYLECONVERSION_CALL* status_function)(const styleconversion_result*);
typedef const char*(STYLECONVERSION_CALL* document_function)(const styleconversion_result*, size_t*);
typedef void(STYLECONVERSION_CALL* release_function)(styleconversion_result*);

/* The function's address as a pointer to a function, which C has no cast for. */
#define FIND(function, library, name)                                                                        \
    do {                                                                                                     \
        void* address = found(library, name);                                                                \
        if (address == NULL) {                                                                               \
            fprintf(stderr, "%s is not in the library\n", name);                                             \
            return 1;                                                                                        \
        }                                                                                                    \
        memcpy(&function, &address, sizeof address);                                                         \
    } while (0)

int main(int count, char** arguments) {
    static const char pattern[] = "*LINES, parallel lines\n45, 0,0, 0,2\n";
    interface_function version = NULL;
    convert_function convert = NULL;
    status_function status = NULL;
    document_function document = NULL;
    release_function release = NULL;
    styleconversion_result* result = NULL;
    int isWhole = 0;
    void* library = count == 2 ? opened(arguments[1]) : NULL;
    if (library == NULL) {
        fprintf(stderr, "the library cannot be loaded\n");
        return 1;
    }
    FIND(version, library, "styleconversion_interface");
    FIND(convert, library, "styleconversion_convert");
    FIND(status, library, "styleconversion_status");
    FIND(document, library, "styleconversion_document");
    FIND(release, library, "styleconversion_release");
    if (version() != STYLECONVERSION_INTERFACE) {
        fprintf(stderr, "the interface is %u\n", (unsigned)version());
        return 1;
    }
    result = convert("lines.pat", pattern, sizeof pattern - 1, NULL, NULL, NULL);
    isWhole = result != NULL && status(result) == STYLECONVERSION_DONE &&
              strstr(document(result, NULL), "\"name\": \"LINES\"") != NULL;
    if (!isWhole) {
        fprintf(stderr, "the pattern was not converted\n");
    }
    release(result);
    return isWhole ? 0 : 1;
}

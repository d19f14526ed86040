/* Converts, lists or checks one file: convert convert|list|check FILE [OPTIONS [FOLDER]]
 *
 * OPTIONS is a JSON object. Further files are those of FOLDER. Prints the document, and on standard error the
 * diagnostics. */
#include <StyleConversionC.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* The bytes of a file, to be freed; null where it cannot be read. */
static char* read_file(const char* path, size_t* size) {
    FILE* file = fopen(path, "rb");
    char* bytes = NULL;
    size_t space = 0;
    size_t count = 0;
    *size = 0;
    if (file == NULL) {
        return NULL;
    }
    do {
        *size += count;
        if (*size == space) {
            char* more = realloc(bytes, space = 2 * space + 4096);
            if (more == NULL) {
                break;
            }
            bytes = more;
        }
    } while ((count = fread(bytes + *size, 1, space - *size, file)) > 0);
    fclose(file);
    return bytes;
}

/* Looks for a file in the folder that is the context; linetype files' names come in upper case. */
static void find_file(void* context, const char* name, styleconversion_answer* answer) {
    char path[1024];
    char* bytes = NULL;
    size_t size = 0;
    size_t i;
    if (strlen((const char*)context) + strlen(name) + 2 > sizeof path) {
        return;
    }
    sprintf(path, "%s/%s", (const char*)context, name);
    bytes = read_file(path, &size);
    if (bytes == NULL) {
        for (i = strlen((const char*)context); path[i] != '\0'; ++i) {
            path[i] = (char)(path[i] >= 'A' && path[i] <= 'Z' ? path[i] - 'A' + 'a' : path[i]);
        }
        bytes = read_file(path, &size);
    }
    if (bytes != NULL) {
        styleconversion_answer_file(answer, bytes, size);
        free(bytes);
    }
}

static styleconversion_result* run(const char* job, const char* path, const char* bytes, size_t size,
                                   const char* options, char* folder) {
    const styleconversion_find_file find = folder == NULL ? NULL : find_file;
    return strcmp(job, "list") == 0    ? styleconversion_list(path, bytes, size, options, find, folder)
           : strcmp(job, "check") == 0 ? styleconversion_check(path, bytes, size, options, find, folder)
                                       : styleconversion_convert(path, bytes, size, options, find, folder);
}

int main(int count, char** arguments) {
    size_t size = 0;
    char* bytes;
    styleconversion_result* result;
    int status;
    if (count < 3) {
        fputs("usage: convert convert|list|check FILE [OPTIONS [FOLDER]]\n", stderr);
        return 2;
    }
    bytes = read_file(arguments[2], &size);
    if (bytes == NULL) {
        fprintf(stderr, "%s cannot be read\n", arguments[2]);
        return 1;
    }
    result = run(arguments[1], arguments[2], bytes, size, count > 3 ? arguments[3] : NULL,
                 count > 4 ? arguments[4] : NULL);
    free(bytes);
    if (result == NULL) {
        fputs("out of memory\n", stderr);
        return 1;
    }
    status = styleconversion_status(result);
    if (status == STYLECONVERSION_USAGE) {
        fprintf(stderr, "%s\n", styleconversion_error(result, NULL));
    } else {
        const char* document = styleconversion_document(result, &size);
        fwrite(document, 1, size, stdout);
        fputs(styleconversion_diagnostics(result, NULL), stderr);
    }
    styleconversion_release(result);
    return status;
}

/* The conversions for programs of any language and compiler: bytes in, documents out, in C99.
 *
 * Texts are UTF-8. Texts that are given end with a zero byte; those that are returned do too, behind the
 * bytes that their size counts. Sizes are in bytes. Nothing that is given is kept beyond the call, and no
 * call opens a file or prints.
 *
 * Calls may come from several threads at once, and convert at once. A result may be read by several threads
 * at once, and is released by one.
 *
 * Functions may be added; those that are there keep their names, arguments and meaning as long as
 * STYLECONVERSION_INTERFACE is the same.
 */
#ifndef STYLECONVERSION_C_H
#define STYLECONVERSION_C_H

#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32) && defined(STYLECONVERSION_C_BUILD)
#define STYLECONVERSION_C_API __declspec(dllexport)
#elif defined(_WIN32)
#define STYLECONVERSION_C_API __declspec(dllimport)
#elif defined(__GNUC__)
#define STYLECONVERSION_C_API __attribute__((visibility("default")))
#else
#define STYLECONVERSION_C_API
#endif

#if defined(_WIN32)
#define STYLECONVERSION_CALL __cdecl
#else
#define STYLECONVERSION_CALL
#endif

/** The version of this interface, and of nothing else. */
#define STYLECONVERSION_INTERFACE 1

/** What a call came to. */
#define STYLECONVERSION_DONE 0  /* there is a document */
#define STYLECONVERSION_INPUT 1 /* the file is refused; the diagnostics say why */
#define STYLECONVERSION_USAGE 2 /* the call itself is wrong; the error says how */

#ifdef __cplusplus
extern "C" {
#endif

/** What a call came to: its document, its diagnostics and its error. */
typedef struct styleconversion_result styleconversion_result;

/** Where a callback puts the file that it is asked for. Valid until the callback returns. */
typedef struct styleconversion_answer styleconversion_answer;

/**
 * Asked for a further file: a shape file or font, once for each name, or the drawing of the option "drawing".
 *
 * `context` is what was given with the callback. `name` is as the file names it, but in upper case where a
 * linetype file does; it is valid until the callback returns. A file that is there goes to
 * styleconversion_answer_file; one that is not goes nowhere, and is missing. The callback is called on the
 * thread of the call. It must return, neither jump out nor throw, and must not call convert, list or check,
 * which refuse it.
 */
typedef void(STYLECONVERSION_CALL* styleconversion_find_file)(void* context, const char* name,
                                                              styleconversion_answer* answer);

/** The interface that the library has: STYLECONVERSION_INTERFACE when it was built. */
STYLECONVERSION_C_API uint32_t STYLECONVERSION_CALL styleconversion_interface(void);

/** The version of the library, "0.1.0". It is the library's, and lasts. */
STYLECONVERSION_C_API const char* STYLECONVERSION_CALL styleconversion_version(void);

/**
 * Converts a linetype file, pattern file, shape file, drawing or symbols document. The document is what
 * "styleconv convert" writes of the same file with the same options, to the byte: JSON, SVG, HTML or XML.
 * A layer style ("qml") is of one symbol: where there are more, that is STYLECONVERSION_USAGE.
 *
 * `name` is what messages call the file; its end, as ".lin", tells the kind where the option "kind" does not.
 * `bytes` are `size` bytes, the file as it is; null where there are none.
 * `options` is a JSON object that docs/schemas/options.schema.json describes; null for none. An option that
 * there is not, or that this call has not, is STYLECONVERSION_USAGE. `find` may be null: then no further file
 * is there. `context` goes to it as it is.
 *
 * The result is the caller's, who releases it; null where memory runs out.
 */
STYLECONVERSION_C_API styleconversion_result* STYLECONVERSION_CALL
styleconversion_convert(const char* name, const void* bytes, size_t size, const char* options,
                        styleconversion_find_file find, void* context);

/** Lists what the file holds: what "styleconv list --format json" writes. The arguments are those of convert;
 * no further file is asked for. */
STYLECONVERSION_C_API styleconversion_result* STYLECONVERSION_CALL
styleconversion_list(const char* name, const void* bytes, size_t size, const char* options,
                     styleconversion_find_file find, void* context);

/** Checks the file: the document is what "styleconv check --format json" writes, with the findings, if any.
 * The arguments are those of convert. The status is STYLECONVERSION_DONE whatever is found; the diagnostics
 * are the document. */
STYLECONVERSION_C_API styleconversion_result* STYLECONVERSION_CALL
styleconversion_check(const char* name, const void* bytes, size_t size, const char* options,
                      styleconversion_find_file find, void* context);

/** One of STYLECONVERSION_DONE, _INPUT and _USAGE. `result` must not be null, here and below. */
STYLECONVERSION_C_API int STYLECONVERSION_CALL styleconversion_status(const styleconversion_result* result);

/** The document; empty where the status is not STYLECONVERSION_DONE. It is the result's, and valid until that
 * is released; so are the next two. `size`, which may be null, takes its size in bytes. */
STYLECONVERSION_C_API const char* STYLECONVERSION_CALL
styleconversion_document(const styleconversion_result* result, size_t* size);

/** What there is to say of the file, as the JSON that docs/schemas/findings.schema.json describes; empty
 * where the status is STYLECONVERSION_USAGE. */
STYLECONVERSION_C_API const char* STYLECONVERSION_CALL
styleconversion_diagnostics(const styleconversion_result* result, size_t* size);

/** What is wrong with the call, as a sentence without a full stop; empty where the status is not
 * STYLECONVERSION_USAGE. */
STYLECONVERSION_C_API const char* STYLECONVERSION_CALL
styleconversion_error(const styleconversion_result* result, size_t* size);

/** Releases a result with all its texts. Null is nothing. */
STYLECONVERSION_C_API void STYLECONVERSION_CALL styleconversion_release(styleconversion_result* result);

/** Answers a callback with a file of `size` bytes, which are copied; a further answer replaces it. Returns 1,
 * or 0 where memory runs out, and the file is missing then. `bytes` may be null where `size` is 0. */
STYLECONVERSION_C_API int STYLECONVERSION_CALL styleconversion_answer_file(styleconversion_answer* answer,
                                                                           const void* bytes, size_t size);

#ifdef __cplusplus
}
#endif

#endif

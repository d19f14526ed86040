/* What the C interface promises of its arguments, results and callbacks.
 *
 * Each expectation that fails is a line, and the status. */
#include "c/StyleConversionC.h"

#include <stdio.h>
#include <string.h>

static int failures = 0;

#define EXPECT(condition)                                                                                    \
    do {                                                                                                     \
        if (!(condition)) {                                                                                  \
            ++failures;                                                                                      \
            printf("%d: not so: %s\n", __LINE__, #condition);                                                \
        }                                                                                                    \
    } while (0)

static const char pattern[] = "*LINES, parallel lines\n45, 0,0, 0,2\n";
static const char broken[] = "*BAD,without its first field\nB,1,-1\n";
/* Asks for a shape file. */
static const char linetype[] = "*MARKED,with a mark\nA,1,-1,[M,marks.shx],-1\n";

static void expect_usage(styleconversion_result* result, const char* error) {
    size_t size = 1;
    EXPECT(result != NULL);
    if (result == NULL) {
        return;
    }
    EXPECT(styleconversion_status(result) == STYLECONVERSION_USAGE);
    if (strcmp(styleconversion_error(result, NULL), error) != 0) {
        ++failures;
        printf("expected \"%s\", was \"%s\"\n", error, styleconversion_error(result, NULL));
    }
    EXPECT(styleconversion_document(result, &size)[0] == '\0' && size == 0);
    EXPECT(styleconversion_diagnostics(result, &size)[0] == '\0' && size == 0);
    styleconversion_release(result);
}

static void refuse_options(const char* options, const char* error) {
    expect_usage(styleconversion_convert("a.pat", pattern, sizeof pattern - 1, options, NULL, NULL), error);
}

static void the_options_are_read_strictly(void) {
    refuse_options("{\"tolerent\": true}", "unknown option tolerent");
    refuse_options("{\"tolerant\": 1}", "option tolerant: expected true or false");
    refuse_options("{\"tolerant\": \"true\"}", "option tolerant: expected true or false");
    refuse_options("{\"format\": \"pdf\"}", "option format: expected json, svg, html, qgis or qml");
    refuse_options("{\"kind\": \"lines\"}",
                   "option kind: expected linetypes, patterns, shapes, drawing or symbols");
    refuse_options("{\"names\": [\"A\", 1]}", "option names: expected a list of texts");
    refuse_options("{\"names\": \"A\"}", "option names: expected a list of texts");
    refuse_options("{\"encoding\": \"no such\"}", "option encoding: expected a known encoding");
    refuse_options("[]", "options: expected an object");
    /* Another call's. */
    refuse_options("{\"notes\": true}", "unknown option notes");
    expect_usage(
        styleconversion_list("a.pat", pattern, sizeof pattern - 1, "{\"format\": \"svg\"}", NULL, NULL),
        "unknown option format");
    expect_usage(styleconversion_convert("a.shx", pattern, 1, "{\"names\": [\"A\"]}", NULL, NULL),
                 "option names: only for linetypes, patterns and drawings");
}

static styleconversion_result* layer_style(const char* bytes, const char* options) {
    return styleconversion_convert("a.pat", bytes, strlen(bytes), options, NULL, NULL);
}

static void a_layer_style_is_of_one_symbol(void) {
    static const char two[] = "*ONE\n45, 0,0, 0,2\n*OTHER\n0, 0,0, 0,1\n";
    const char* refusal =
        "option format: qml is the style of one symbol, and there are 2: choose one with names";
    styleconversion_result* result = layer_style(two, "{\"format\": \"qml\", \"names\": [\"OTHER\"]}");
    EXPECT(styleconversion_status(result) == STYLECONVERSION_DONE);
    EXPECT(strstr(styleconversion_document(result, NULL), "<symbol type=\"fill\" name=\"0\"") != NULL);
    styleconversion_release(result);
    expect_usage(layer_style(two, "{\"format\": \"qml\"}"), refusal);
    expect_usage(layer_style(two, "{\"format\": \"qml\", \"names\": [\"ONE\", \"OTHER\"]}"), refusal);
    /* A file that is refused is so, not for its count. */
    result = styleconversion_convert("a.lin", broken, sizeof broken - 1, "{\"format\": \"qml\"}", NULL, NULL);
    EXPECT(styleconversion_status(result) == STYLECONVERSION_INPUT);
    styleconversion_release(result);
}

static void wrong_calls_are_told(void) {
    expect_usage(styleconversion_convert(NULL, pattern, 1, NULL, NULL, NULL), "the name is null");
    expect_usage(styleconversion_check("a.pat", NULL, 1, NULL, NULL, NULL), "the bytes are null");
    styleconversion_release(NULL);
}

static void documents_end_with_a_zero_behind_their_size(void) {
    size_t size = 0;
    styleconversion_result* result =
        styleconversion_convert("a.pat", pattern, sizeof pattern - 1, "{}", NULL, NULL);
    EXPECT(styleconversion_status(result) == STYLECONVERSION_DONE);
    EXPECT(styleconversion_error(result, &size)[0] == '\0' && size == 0);
    EXPECT(strlen(styleconversion_document(result, &size)) == size && size > 0);
    EXPECT(strstr(styleconversion_document(result, NULL), "LINES") != NULL);
    EXPECT(strlen(styleconversion_diagnostics(result, &size)) == size && size > 0);
    styleconversion_release(result);
}

static void a_refused_file_has_diagnostics_and_no_document(void) {
    size_t size = 1;
    styleconversion_result* result =
        styleconversion_convert("a.lin", broken, sizeof broken - 1, NULL, NULL, NULL);
    EXPECT(styleconversion_status(result) == STYLECONVERSION_INPUT);
    EXPECT(styleconversion_document(result, &size)[0] == '\0' && size == 0);
    EXPECT(strstr(styleconversion_diagnostics(result, NULL), "\"line\": 2") != NULL);
    styleconversion_release(result);
    result = styleconversion_convert("a.unknown", pattern, 0, NULL, NULL, NULL);
    EXPECT(styleconversion_status(result) == STYLECONVERSION_INPUT);
    styleconversion_release(result);
    result = styleconversion_check("a.pat", NULL, 0, NULL, NULL, NULL);
    EXPECT(styleconversion_status(result) == STYLECONVERSION_DONE);
    styleconversion_release(result);
}

static void the_kind_is_as_the_option_says(void) {
    styleconversion_result* result =
        styleconversion_list("a", pattern, sizeof pattern - 1, "{\"kind\": \"patterns\"}", NULL, NULL);
    EXPECT(styleconversion_status(result) == STYLECONVERSION_DONE);
    EXPECT(strstr(styleconversion_document(result, NULL), "parallel lines") != NULL);
    styleconversion_release(result);
}

struct asked {
    int count;
    char name[64];
};

static void remember(void* context, const char* name, styleconversion_answer* answer) {
    struct asked* asked = context;
    styleconversion_result* nested = styleconversion_list("a.pat", pattern, 1, NULL, NULL, NULL);
    expect_usage(nested, "called from a callback");
    ++asked->count;
    strncpy(asked->name, name, sizeof asked->name - 1);
    /* No shape file; the second answer counts. */
    EXPECT(styleconversion_answer_file(answer, NULL, 0) == 1);
    EXPECT(styleconversion_answer_file(answer, "garbage", 7) == 1);
}

static void the_callback_is_asked_for_shape_files(void) {
    struct asked asked = {0, ""};
    styleconversion_result* result =
        styleconversion_convert("a.lin", linetype, sizeof linetype - 1, NULL, remember, &asked);
    EXPECT(styleconversion_status(result) == STYLECONVERSION_INPUT);
    EXPECT(asked.count == 1);
    EXPECT(strcmp(asked.name, "MARKS.SHX") == 0);
    styleconversion_release(result);
    /* Without one, no file is there. */
    result = styleconversion_convert("a.lin", linetype, sizeof linetype - 1, NULL, NULL, NULL);
    EXPECT(styleconversion_status(result) == STYLECONVERSION_INPUT);
    EXPECT(strstr(styleconversion_diagnostics(result, NULL), "among the files given") != NULL);
    styleconversion_release(result);
}

static void the_callback_is_asked_for_the_drawing(void) {
    struct asked asked = {0, ""};
    styleconversion_result* result = styleconversion_convert(
        "a.lin", linetype, sizeof linetype - 1, "{\"drawing\": \"styles.json\"}", remember, &asked);
    EXPECT(styleconversion_status(result) == STYLECONVERSION_INPUT);
    EXPECT(strcmp(asked.name, "styles.json") == 0);
    styleconversion_release(result);
}

int main(void) {
    EXPECT(styleconversion_interface() == STYLECONVERSION_INTERFACE);
    EXPECT(strcmp(styleconversion_version(), EXPECTED_VERSION) == 0);
    the_options_are_read_strictly();
    a_layer_style_is_of_one_symbol();
    wrong_calls_are_told();
    documents_end_with_a_zero_behind_their_size();
    a_refused_file_has_diagnostics_and_no_document();
    the_kind_is_as_the_option_says();
    the_callback_is_asked_for_shape_files();
    the_callback_is_asked_for_the_drawing();
    return failures > 0;
}

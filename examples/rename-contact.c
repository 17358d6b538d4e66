/*
 * The C interface: a registration event as JSON, the same with one contact's display name changed, and the document
 * that it makes; then what is said of JSON that is no document.
 */
#include <stdio.h>
#include <string.h>

#include "imsxml.h"

static const char kBody[] =
    "<reginfo xmlns=\"urn:ietf:params:xml:ns:reginfo\" version=\"1\" state=\"full\">"
    "<registration aor=\"sip:ada@ims.example.net\" id=\"r1\" state=\"active\">"
    "<contact id=\"c1\" state=\"active\" event=\"registered\"><uri>sip:ada@198.51.100.17</uri>"
    "<display-name>Ada</display-name></contact></registration></reginfo>";

static const char kWrong[] = "{\"schema\":\"reginfo\",\n \"root\":{\"class\":\"ix_reginfo\",\"stat\":\"full\"}}";

static int fail(const char* what) {
    struct imsxml_problem problem;
    imsxml_last_problem(&problem);
    printf("%s: %d:%d: %s\n", what, problem.line, problem.column, problem.text);
    return 1;
}

/* Prints a result and gives it back. */
static void show(char* result) {
    printf("%s\n", result);
    imsxml_free(result);
}

int main(void) {
    char* json = NULL;
    char* text = NULL;
    char* name = NULL;
    const char* schema = imsxml_schema_of_content_type("application/reginfo+xml; charset=\"utf-8\"");

    if (imsxml_decode(kBody, sizeof kBody - 1, schema, IMSXML_PROFILE_STANDARD, &json) != IMSXML_OK) {
        return fail("not read");
    }
    /* A program would take a library for JSON. The name is as long as the other one. */
    name = strstr(json, "\"Ada\"");
    if (name != NULL) memcpy(name, "\"Eve\"", 5);
    if (imsxml_encode(json, strlen(json), NULL, IMSXML_PROFILE_STANDARD, &text) != IMSXML_OK) {
        imsxml_free(json);
        return fail("not written");
    }
    show(json);
    show(text);

    if (imsxml_encode(kWrong, sizeof kWrong - 1, NULL, IMSXML_PROFILE_STANDARD, &text) != IMSXML_WRONG_JSON) return 2;
    return fail("wrong");
}

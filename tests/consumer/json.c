/* What a user of the library for JSON does first: read a document, and write it again. */
#include <stdio.h>
#include <string.h>

#include "imsxml.h"

static const char kBody[] =
    "<communication-waiting xmlns=\"http://uri.etsi.org/ngn/params/xml/simservs/xcap\" active=\"false\"/>";

int main(void) {
    char* json = NULL;
    char* text = NULL;
    if (imsxml_decode(kBody, sizeof kBody - 1, NULL, IMSXML_PROFILE_DEVICE, &json) != IMSXML_OK) return 2;
    if (imsxml_encode(json, strlen(json), NULL, IMSXML_PROFILE_DEVICE, &text) != IMSXML_OK) return 3;
    printf("%s\n", text);
    imsxml_free(json);
    imsxml_free(text);
    return 0;
}

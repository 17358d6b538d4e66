/*
 * IMS documents to and from JSON, for C.
 *
 * A document is a text in XML; its JSON is what the command "imsxml decode" prints, on one line and without "file".
 * Texts are UTF-8.
 *
 * Every call may be made from several threads at the same time. None throws, ends the process or leaves memory behind,
 * whatever it returns. The device profile keeps two walks that do not end for some texts (see "imsxml --timeout"): for
 * documents of strangers, take the standard profile, which has none.
 *
 * A result is a text with a NUL behind it. It belongs to the caller, who gives it to imsxml_free. Where a call does not
 * return IMSXML_OK the result is NULL.
 */
#ifndef IMSXML_H
#define IMSXML_H

#include <stddef.h>

#if defined(__GNUC__)
#define IMSXML_API __attribute__((visibility("default")))
#else
#define IMSXML_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* What a call returns. */
typedef enum imsxml_status {
    IMSXML_OK = 0,
    IMSXML_NO_MEMORY = 1,
    IMSXML_WRONG_USE = 2,      /* A pointer is NULL that must not be, or there is no such profile. */
    IMSXML_UNKNOWN_SCHEMA = 3, /* There is no schema of that name or content type. */
    IMSXML_NOT_READ = 4,       /* The document is not complete and balanced (standard profile: not well-formed), or of
                                  another schema. */
    IMSXML_NOT_WRITTEN = 5,    /* The tree cannot be written: something is missing, or its schema is only read. */
    IMSXML_WRONG_JSON = 6      /* It is no JSON, or says what has no place in a document. */
} imsxml_status;

/* How documents are read and written. */
typedef enum imsxml_profile {
    IMSXML_PROFILE_DEVICE = 0,  /* The dialect of the IMS client stack. */
    IMSXML_PROFILE_STANDARD = 1 /* What the public standards say; nothing is lost. */
} imsxml_profile;

/*
 * Reads a document.
 *
 * text, length: it needs no NUL behind it.
 * schema_or_content_type: "reginfo" or "application/reginfo+xml; charset=utf-8", for example; NULL: the schema follows
 *     from the root element.
 * profile: one of imsxml_profile.
 * json: gets the result.
 *
 * Bytes in texts that are not UTF-8 are replaced, which imsxml_last_problem tells beside IMSXML_OK.
 * Returns all but IMSXML_NOT_WRITTEN and IMSXML_WRONG_JSON.
 */
IMSXML_API int imsxml_decode(const char* text, size_t length, const char* schema_or_content_type, int profile,
                             char** json);

/*
 * Writes the document that JSON says. Nothing in it is passed over: an unknown key, a word that is none or a class in
 * the wrong place is IMSXML_WRONG_JSON, and the problem names the nearest that there is.
 *
 * json, length: one document; it needs no NUL behind it.
 * schema: a name or a content type; NULL: as "schema" in the JSON says.
 * profile: one of imsxml_profile.
 * text: gets the result.
 *
 * The device profile can write a text that is cut or lacks an end tag, as the client stack does. It returns IMSXML_OK
 * then, too, and imsxml_last_problem tells it.
 * Returns all but IMSXML_NOT_READ.
 */
IMSXML_API int imsxml_encode(const char* json, size_t length, const char* schema, int profile, char** text);

/* Gets one point in which a document is not what its standard says. The text ends with the call. */
typedef void (*imsxml_report)(int line, int column, const char* text, void* context);

/*
 * Tells in which points a document is not what its standard says.
 *
 * text, length: it needs no NUL behind it.
 * schema: a name or a content type; NULL: it follows from the root element.
 * report: gets each point, in the order of the text, and context; NULL: nobody is told. It must not leave by an
 * exception or a jump. count: gets how many there are, 0 for a valid document; -1 where the call does not return
 * IMSXML_OK. NULL: not wanted.
 *
 * Returns all but IMSXML_NOT_WRITTEN and IMSXML_WRONG_JSON.
 */
IMSXML_API int imsxml_validate(const char* text, size_t length, const char* schema, imsxml_report report, void* context,
                               int* count);

/*
 * The name of the schema of a content type, which may have parameters; NULL: none. The name belongs to the library and
 * does not end.
 */
IMSXML_API const char* imsxml_schema_of_content_type(const char* type);

/* The version of the library, for example "0.1.0". It does not end. */
IMSXML_API const char* imsxml_version(void);

/* Gives back a result. NULL is ignored. */
IMSXML_API void imsxml_free(char* result);

/* What is wrong, and where. */
struct imsxml_problem {
    int line;       /* Of the text or the JSON, from 1 on; 0: it has no place in it. */
    int column;     /* In characters, from 1 on; 0: as above. */
    char text[256]; /* On one line; empty: nothing is wrong. A longer one is cut. */
};

/* Why the last call of this thread that returns a status returned another one than IMSXML_OK. NULL is ignored. */
IMSXML_API void imsxml_last_problem(struct imsxml_problem* problem);

#ifdef __cplusplus
}
#endif

#endif

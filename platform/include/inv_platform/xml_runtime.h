/* XML pull-parser runtime: what the generated decoders and the document loaders import.
 *
 * Every function takes a context made by rtXmlInitContext(); a context serves one thread at a
 * time. Statuses are 0 for success and negative otherwise (xb_status). No function throws.
 *
 * Reading position. The runtime keeps a stack of open elements. A start tag that a lookup has
 * read is open at once; rtXmlpMarkLastEventActive() closes it again and makes the next lookup
 * return it anew. "Current tag" below is the start tag of the innermost open element; attribute
 * functions speak of it, and after a push-back it is the parent's again. Typed value decoders
 * read the selected attribute when one is selected, else the text of the current element up to
 * (not including) its end tag.
 */
#ifndef INV_PLATFORM_XML_RUNTIME_H
#define INV_PLATFORM_XML_RUNTIME_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include "inv_parser/platform_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Statuses. Values -10 to -203 are contract; those from -301 on are this runtime's own. */
enum xb_status {
    XB_OK = 0,
    XB_E_NO_MEMORY = -10,           /* the context's heap or the system is out of memory */
    XB_E_CONSTRAINT = -16,          /* wrong number of octets or of occurrences */
    XB_E_NOT_EMPTY = -24,           /* an element that must be empty has content */
    XB_E_ATTRIBUTE_UNKNOWN = -33,   /* attribute that the type does not have */
    XB_E_ATTRIBUTE_MISSING = -36,   /* required attribute absent */
    XB_E_RUN_ENDED = -41,           /* no further occurrence of a repeated element; not a failure */
    XB_E_NO_XSI_TYPE = -51,         /* the element carries no xsi:type; not a failure */
    XB_E_UNDECLARED_PREFIX = -203,  /* namespace prefix without declaration */
    XB_E_FILE_OPEN = -301,          /* the input file cannot be opened */
    XB_E_FILE_READ = -302,          /* reading the input failed */
    XB_E_MALFORMED = -303,          /* not well-formed XML (parameter: the reader's reason) */
    XB_E_DEPTH = -304,              /* elements nested more than XB_MAX_DEPTH deep */
    XB_E_ELEMENT_UNEXPECTED = -305, /* unknown element or element out of order (parameter: its name) */
    XB_E_ELEMENT_MISSING = -306,    /* required element missing (parameters: expected name, found name) */
    XB_E_ROOT_MISMATCH = -307,      /* another root element than asked for (parameter: its name) */
    XB_E_TEXT_UNEXPECTED = -308,    /* text between elements, or an element inside a value */
    XB_E_BAD_INTEGER = -309,        /* text is no integer */
    XB_E_OUT_OF_RANGE = -310,       /* number beyond the kind's range */
    XB_E_BAD_BOOLEAN = -311,        /* text is none of true, false, 1, 0 */
    XB_E_BAD_DECIMAL = -312,        /* text is no decimal number */
    XB_E_BAD_HEX = -313,            /* text is no hexadecimal octet string */
    XB_E_UNKNOWN_TOKEN = -314,      /* token that the enumeration does not have */
    XB_E_UNKNOWN_TYPE = -315,       /* xsi:type names no type that is allowed here */
    XB_E_BAD_STATE = -316           /* call out of order: no reader, no open element */
};

/* Content index that an element lookup yields at the end of the content. */
#define XB_END_OF_CONTENT 0x7FFFFFFF

/* Greatest number of elements open at once; the element beyond it fails with XB_E_DEPTH. */
#define XB_MAX_DEPTH 128

/* Greatest size of a file in octets. A larger one is not opened; one that grows beyond it while it is
 * read ends with XB_E_FILE_READ. */
#define XB_MAX_FILE_SIZE 1073741824

/* How a name is found in its table without comparing it with every row: rows whose hashes fall into
 * the same bucket are chained, in table order. Bucket hash * row_count >> 32 begins with the row that
 * the bucket's own row names. A table with hash 0 in its first row is searched row by
 * row; one with links is passed as a whole, or a single row of it. */
typedef struct xb_name_link {
    uint32_t hash;  /* inv::name_hash() of the row's name (inv_platform/name_hash.h), never 0; or 0 */
    uint16_t first; /* row number plus 1 that the bucket with this row's number begins with; 0: none */
    uint16_t next;  /* row number plus 1 of the next row in this row's chain; 0: none */
} xb_name_link;

/* One row of an element table. Rows are in schema order; several rows may carry the same name
 * with different indexes (a lookup takes the first whose index is allowed at its position). */
typedef struct xb_element_row {
    const char *name;      /* local name; elements of inventory documents have no namespace */
    uint16_t name_length;  /* octets of name */
    int32_t content_index; /* what a match on this name yields */
    xb_name_link link;
} xb_element_row;

/* What may appear at one content position: indexes first .. first + count - 1. */
typedef struct xb_sequence_row {
    int32_t first;
    int32_t count;
    int32_t end; /* always -1 */
} xb_sequence_row;

/* One row of an attribute table; the attribute's index is its row number. */
typedef struct xb_attribute_row {
    const char *name;
    uint16_t name_length;
    xb_name_link link;
} xb_attribute_row;

/* One row of a type-name table (xsi:type); the index is the row number. */
typedef struct xb_type_name_row {
    const char *name;
    uint16_t name_length;
} xb_type_name_row;

/* One row of an enumeration table, sorted by token text in strcmp order. */
typedef struct xb_enum_row {
    const char *token;
    uint32_t code;
    uint16_t token_length;
    uint16_t inverse_index; /* row p holds the position of the row whose code is p */
} xb_enum_row;

/* An enumeration: its rows and, for each, how its token is found by hash. */
typedef struct xb_tokens {
    const xb_enum_row *rows;
    const xb_name_link *links;
    uint32_t count;
} xb_tokens;

/* What the short ways (rtXmlpDecPlainElements(), rtXmlpDecPlainAttributes()) can decode by themselves. */
enum xb_plain_kind {
    XB_PLAIN_NONE, /* nothing: left to the caller */
    XB_PLAIN_INT8,
    XB_PLAIN_UINT8,
    XB_PLAIN_INT16,
    XB_PLAIN_UINT16,
    XB_PLAIN_INT32,
    XB_PLAIN_UINT32,
    XB_PLAIN_INT64,
    XB_PLAIN_BOOLEAN,
    XB_PLAIN_TEXT,     /* const char *, as rtXmlpDecXmlStr() */
    XB_PLAIN_TOKEN,    /* uint32_t code of a token */
    XB_PLAIN_OCTETS,   /* xb_octets, as rtXmlpDecDynHexStr() */
    XB_PLAIN_BUFFER,   /* uint32_t count and `capacity` octets behind it, all of which are given */
    XB_PLAIN_TEXT_LIST /* of repeated elements: xb_data_list of const char * */
};

/* Where a plain value goes; row n belongs to content index n, or to attribute n. */
typedef struct xb_plain_row {
    const xb_tokens *tokens; /* of XB_PLAIN_TOKEN, else null */
    uint32_t offset;         /* of the value in the record */
    uint32_t present_offset; /* of the octet with its presence bit in the record */
    uint8_t present_mask;    /* that bit; 0: it has none */
    uint8_t kind;            /* xb_plain_kind */
    uint16_t capacity;       /* of XB_PLAIN_BUFFER, else 0 */
} xb_plain_row;

/* A namespace declaration as rtXmlpGetXmlnsAttrs() lists it; both texts in the context's heap. */
typedef struct xb_xmlns {
    const char *prefix; /* "" for the default namespace */
    const char *uri;    /* "" when the declaration takes the default namespace back */
} xb_xmlns;

/* One recorded error. All pointers stay valid until rtxFreeContext(). */
typedef struct xb_error {
    int32_t status;
    bool fatal;           /* it ended the decode (attribute errors do not) */
    uint64_t line;        /* 1-based line in the document; 0 when there is no document */
    uint64_t column;      /* 1-based column, counted in characters */
    uint64_t offset;      /* 0-based octet offset in the document */
    const char *source;   /* generated source name of the innermost failing step; "" when
                             the runtime recorded the failure by itself */
    uint32_t source_line; /* its step number */
    uint32_t parameter_count;
    const char *const *parameters; /* texts, integers already formatted */
} xb_error;

/* --- Context and heap ------------------------------------------------------------------- */

/* Makes *ctx ready for use. Returns 0 or XB_E_NO_MEMORY; after a failure the context may be
 * passed to rtxFreeContext() but to nothing else. */
int32_t rtXmlInitContext(xb_context *ctx);

/* Gives back everything the context holds: reader, open file, heap, error records. Null, a
 * zeroed context and a second call do nothing. */
void rtxFreeContext(xb_context *ctx);

/* Memory from the context's heap, aligned for any type, content undefined; null when memory is
 * out (nothing recorded) or for sizes above PTRDIFF_MAX. A size of 0 gives a unique pointer. */
void *rtxMemHeapAlloc(xb_context *ctx, size_t size);

/* Gives one allocation back to the heap early. Only the newest allocation is reused; anything
 * else waits for rtxFreeContext(). Null does nothing. */
void rtxMemHeapFreePtr(xb_context *ctx, void *ptr);

/* Says that nothing in the context's heap from `from` on and before `to` is needed any more; both came
 * from it, and errors recorded between them lie there, too. Whole pages in between may go back to the
 * system early (here: when both lie in one chunk), the rest goes with rtxFreeContext(). Returns where
 * what is left begins, for the next call to go on from. */
const void *rtxMemHeapForget(xb_context *ctx, const void *from, const void *to);

/* Appends data to list with a node from the heap. Returns the node, or null when memory is out. */
xb_data_node *rtxDListAppend(xb_context *ctx, xb_data_list *list, void *data);

/* --- Input ------------------------------------------------------------------------------ */

/* Opens file_name for reading; an input that is open is closed first. Returns 0, XB_E_FILE_OPEN
 * (missing, no permission, no regular file, larger than XB_MAX_FILE_SIZE) or XB_E_NO_MEMORY; a failure is
 * recorded with the file name and the reason. Never waits: pipes and devices are refused. */
int32_t rtxStreamFileCreateReader(xb_context *ctx, const char *file_name);

/* Reads from size octets at data, which must outlive the context's use of it. */
int32_t rtxStreamMemoryCreateReader(xb_context *ctx, const void *data, size_t size);

/* Closes the input, if any. Decoded data and errors stay. */
void rtxStreamClose(xb_context *ctx);

/* --- Events ----------------------------------------------------------------------------- */

/* Creates the pull reader over the opened input. XB_E_BAD_STATE without input or when the input
 * has its reader already; XB_E_NO_MEMORY. A failure of reading (XB_E_FILE_READ, XB_E_MALFORMED,
 * XB_E_DEPTH, XB_E_NO_MEMORY, XB_E_UNDECLARED_PREFIX of an element) is final: every later read
 * returns it. After any other failure the reader stands where it stood.
 *
 * External entities are never loaded and end the reading with XB_E_MALFORMED, as do references
 * whose text is not known, entities or default values that expand far beyond the document's size, a
 * reference to an entity whose events take more than one megabyte of memory (text, some hundred octets for
 * each tag, some forty for each attribute), and references to entities that take more than four with no
 * text, tag or reference to a character between them.
 * A document type that stands outside of the document is passed over; attribute values may then
 * refer to characters and the predefined entities only. One within may declare 1000 entities and
 * attributes at most. */
int32_t rtXmlpCreateReader(xb_context *ctx);

/* Reads the next start tag and matches its local name, whatever its namespace. XB_E_ROOT_MISMATCH
 * with the name found (the tag is left for the next read, so that another name may be tried), or
 * the reader's status. depth: the level the element must have (1: the root), else
 * XB_E_BAD_STATE; -1: any. The same holds wherever a depth is passed. */
int32_t rtXmlpMatchStartTag(xb_context *ctx, const char *local_name, int32_t depth);

/* Consumes the end tag of the current element; white space, comments and processing
 * instructions before it are passed over. XB_E_TEXT_UNEXPECTED or XB_E_ELEMENT_UNEXPECTED when
 * text or a further element stands there. When the tag closes the root, the rest of the document
 * is read too and must hold nothing but white space, comments and processing instructions. */
int32_t rtXmlpMatchEndTag(xb_context *ctx, int32_t depth);

/* Reads the next start tag inside the current element and maps it to a content index. Of the
 * table's rows those count whose index lies within sequence[position]; the first with the tag's
 * name wins. Returns the index (the tag is open and current then), XB_END_OF_CONTENT when the
 * content ends (the end tag, or in group mode any other element, is left for the next read), or
 * a negative status: XB_E_ELEMENT_MISSING when position is at or before last_required (-1: none)
 * and the content ends or another element stands there, XB_E_ELEMENT_UNEXPECTED,
 * XB_E_TEXT_UNEXPECTED, or the reader's. Clears the group mode that was set for the decoder. */
int32_t rtXmlpGetNextSeqElemID(xb_context *ctx, const xb_element_row *table, int32_t row_count,
                               const xb_sequence_row *sequence, int32_t position, int32_t last_required,
                               bool group);

/* Reads the next start tag and maps it within row_count rows. Returns the content index, or
 * XB_E_RUN_ENDED when another tag or the end of the content comes; that event is left for the
 * next read, whether or not the caller pushes it back. */
int32_t rtXmlpGetNextElemID(xb_context *ctx, const xb_element_row *rows, int32_t row_count, int32_t depth);

/* Pushes the last read event back: the next read returns it again. An element opened by it is
 * closed. Does nothing when the last event is already pushed back, or when what follows it has been
 * read ahead (by a value decoder or rtXmlpIsEmptyElement()). */
void rtXmlpMarkLastEventActive(xb_context *ctx);

/* True when the current element has neither elements nor text other than white space. Also true
 * when reading fails: the next read says so. Counts as no read: a selected attribute stays selected. */
bool rtXmlpIsEmptyElement(xb_context *ctx);

/* Group mode: the next decoder reads only its own rows from the element that is already open and
 * leaves its start tag and attributes alone. Forced by the caller, asked for by the callee,
 * cleared with the next start tag that is read. */
bool rtXmlpIsDecodeAsGroup(xb_context *ctx);
void rtXmlpForceDecodeAsGroup(xb_context *ctx);

/* --- Attributes of the current tag -------------------------------------------------------- */

/* True while the current tag has attributes, namespace declarations among them, that have neither
 * been consumed nor hidden. */
bool rtXmlpHasAttributes(xb_context *ctx);

/* Appends the tag's namespace declarations to list (nodes of xb_xmlns) and consumes them. */
int32_t rtXmlpGetXmlnsAttrs(xb_context *ctx, xb_data_list *list);

/* Consumes the tag's xsi: attributes (type, nil, schemaLocation, noNamespaceSchemaLocation). */
int32_t rtXmlpDecXSIAttrs(xb_context *ctx);

/* Marks all attributes of the tag consumed and ends a selection. */
void rtXmlpHideAttributes(xb_context *ctx);

/* True until the tag's attributes have been hidden, also for a tag without any. */
bool rtXmlpNeedDecodeAttributes(xb_context *ctx);

/* Number of attributes of the tag, xsi: ones included, namespace declarations not; negative on
 * failure. */
int32_t rtXmlpGetAttributeCount(xb_context *ctx);

/* Selects attribute index (document order) for lookup and decoding. XB_E_BAD_STATE when there is
 * none; no attribute is selected then. Every read of an event ends the selection. */
int32_t rtXmlpSelectAttribute(xb_context *ctx, int32_t index);

/* Looks the selected attribute up. Returns its row or a negative status: XB_E_UNDECLARED_PREFIX,
 * else XB_E_ATTRIBUTE_UNKNOWN with *namespace_index -1 (no namespace), 0 or above (a foreign
 * one) or -2 (an xsi: attribute, never an error). */
int32_t rtXmlpGetAttributeID(xb_context *ctx, const xb_attribute_row *table, int32_t row_count,
                             int32_t *namespace_index);

/* Local name of the selected attribute; its length in *length. Valid until the selection ends. */
const char *rtXmlpGetAttributeName(xb_context *ctx, size_t *length);

/* Maps the tag's xsi:type value to a row. XB_E_NO_XSI_TYPE, XB_E_UNKNOWN_TYPE (with the value),
 * XB_E_UNDECLARED_PREFIX. */
int32_t rtXmlpGetXSITypeIndex(xb_context *ctx, const xb_type_name_row *table, int32_t row_count);

/* --- Values ----------------------------------------------------------------------------- */

/* Numbers, by XML Schema's lexical rules: white space around is dropped, a sign is allowed (an
 * unsigned kind takes "-0" only), digits must follow and nothing else may. XB_E_BAD_INTEGER,
 * XB_E_OUT_OF_RANGE. The target keeps its value on failure. Value decoders leave the
 * offending text as a parameter for the error that is recorded next, except with XB_E_CONSTRAINT. */
int32_t rtXmlpDecInt8(xb_context *ctx, int8_t *value);
int32_t rtXmlpDecUInt8(xb_context *ctx, uint8_t *value);
int32_t rtXmlpDecInt16(xb_context *ctx, int16_t *value);
int32_t rtXmlpDecUInt16(xb_context *ctx, uint16_t *value);
int32_t rtXmlpDecInt(xb_context *ctx, int32_t *value);
int32_t rtXmlpDecUInt(xb_context *ctx, uint32_t *value);
int32_t rtXmlpDecInt64(xb_context *ctx, int64_t *value);
/* The value as it stands, without a copy: *text has *length octets and no NUL, and is valid until the
 * next read. */
int32_t rtXmlpDecView(xb_context *ctx, const char **text, size_t *length);
/* true, false, 1 or 0 (XB_E_BAD_BOOLEAN); stores 1 or 0. */
int32_t rtXmlpDecBool(xb_context *ctx, uint8_t *value);
/* A decimal number without exponent (XB_E_BAD_DECIMAL). Beyond the greatest double:
 * XB_E_OUT_OF_RANGE; below the least: zero. */
int32_t rtXmlpDecDecimal(xb_context *ctx, double *value);
/* The text as it stands (white space kept, line ends normalised), NUL-terminated UTF-8 in the
 * heap; never null on success. */
int32_t rtXmlpDecXmlStr(xb_context *ctx, const char **text);
int32_t rtXmlpDecDynUTF8Str(xb_context *ctx, char **text);
/* Hexadecimal octets into a buffer of capacity octets. An odd number of digits or other text is
 * XB_E_BAD_HEX; more octets than capacity is XB_E_CONSTRAINT. *count is the number of octets
 * given, also when they did not fit; nothing is written past the buffer. */
int32_t rtXmlpDecHexStr(xb_context *ctx, uint8_t *octets, uint32_t capacity, uint32_t *count);
/* The same into the heap. Empty text gives 0 octets. */
int32_t rtXmlpDecDynHexStr(xb_context *ctx, xb_octets *octets);
/* Keeps the content of the current element, markup included, as text in the heap. The text is
 * written anew from the events: without comments and processing instructions, with character data
 * escaped, every element with two tags. */
int32_t rtXmlpDecAny(xb_context *ctx, char **text);

/* --- Short ways -------------------------------------------------------------------------- */

/* Decodes what comes next in the current element for as long as it is plain: elements of the table
 * without attributes that hold a valid value of their kind, each at or behind the position that the
 * one before has left (see rtXmlpGetNextSeqElemID()). Returns the position then reached, `position`
 * itself when nothing was plain; the first element that is not stays unread. Never fails and never
 * records anything: whatever is odd, or wrong, is left to the long way, and so is everything in
 * contexts whose reader cannot look that far ahead. `plain` has position_count rows. The tables have to
 * stay as they are for as long as the reader is used: where a name was found is kept. Of a repeated
 * element the last occurrence is decoded only when another plain element follows. */
int32_t rtXmlpDecPlainElements(xb_context *ctx, const xb_element_row *table, int32_t row_count,
                               const xb_sequence_row *sequence, const xb_plain_row *plain, int32_t position,
                               int32_t position_count, void *record);

/* What comes next in the current element, without reading it: the content index of an element that is
 * plain as above, whatever its text, and may stand at the position; XB_END_OF_CONTENT for a plain
 * element that may not; XB_E_BAD_STATE when something else comes or the reader cannot tell. Any other answer
 * ends the selection of an attribute. Never records anything. */
int32_t rtXmlpSeePlainElement(xb_context *ctx, const xb_element_row *table, int32_t row_count,
                              const xb_sequence_row *sequence, int32_t position);

/* rtXmlpDecPlainElements() for the current tag's attributes from `index` on (document order). Returns the
 * index of the first attribute that was not decoded, the number of attributes when all were. Bit n of *seen
 * is set for attribute n of the table, which has 64 rows at most. */
int32_t rtXmlpDecPlainAttributes(xb_context *ctx, const xb_attribute_row *table, int32_t row_count,
                                 const xb_plain_row *plain, int32_t index, void *record, uint64_t *seen);

/* Binary search of a sorted enumeration table; lengths are compared exactly. Returns the row or
 * XB_E_UNKNOWN_TOKEN. A null text is not found. Needs no context. */
int32_t rtxLookupEnum(const char *text, size_t length, const xb_enum_row *table, uint32_t row_count);

/* --- Errors ----------------------------------------------------------------------------- */

/* Parameters are collected for the error that is recorded next; from the ninth on they are
 * dropped. One that memory is lacking for becomes an empty text. */
void rtxErrAddStrParm(xb_context *ctx, const char *text);
void rtxErrAddStrnParm(xb_context *ctx, const char *text, size_t length);
void rtxErrAddIntParm(xb_context *ctx, int32_t value);
void rtxErrAddUIntParm(xb_context *ctx, uint32_t value);

/* Records a failure that ends the decode, with the generated source and step, at the place in the
 * document where the reader stands, and returns status. Called again with the same status while
 * the failure travels up the call chain it keeps the first record and its place, and drops
 * parameters collected since. The place is the selected attribute's name; else the '<' of the tag
 * read last, the first character of the value decoded last (other than white space, where it has
 * one) or where the document is not well-formed; for XB_E_ATTRIBUTE_MISSING the current tag. The
 * first record is kept even when memory is out; a further one is lost then, not its status. */
int32_t rtxErrSetData(xb_context *ctx, int32_t status, const char *source, uint32_t source_line);

/* Records a status that does not end the decode. A failure of the same status that
 * rtxErrSetData() has recorded for the value just decoded becomes this record: collected
 * parameters are added to it and it no longer counts as fatal. */
int32_t rtxErrSetNewData(xb_context *ctx, int32_t status, const char *source, uint32_t source_line);

/* Status of the first recorded error, 0 when there is none. */
int32_t rtxErrGetStatus(const xb_context *ctx);
uint32_t rtxErrGetCount(const xb_context *ctx);
/* Fills *error with record index (0-based, in order of recording); false when there is none. */
bool rtxErrGet(const xb_context *ctx, uint32_t index, xb_error *error);
/* A short English text for a status, without parameters; constant. */
const char *rtxErrText(int32_t status);

/* --- Armed contexts ----------------------------------------------------------------------- */

/* A context that is armed before its reader is made keeps the place of every decoded item, and decoding
 * goes on behind a failure where it can: decoders pass over the failing element and take up its next
 * sibling. Loads never arm a context; the first failure ends their decode. Without rtxArmContext()
 * everything behaves as if this section did not exist. What is not well-formed, nests too deep or cannot
 * be read ends the decode of an armed context too, and so does XB_MAX_ARMED_ERRORS. */

/* Greatest number of errors that an armed context records; what fails beyond it is final. */
#define XB_MAX_ARMED_ERRORS 10000

/* Where a decoded item stands: the '<' of its element, or its attribute's name. */
typedef struct xb_place {
    uint64_t line;      /* 1-based */
    uint64_t column;    /* 1-based, in characters */
    uint64_t offset;    /* 0-based, in octets */
    const void *parent; /* record of the element around it (for an attribute its own element's); null
                           for the root */
} xb_place;

/* Why an element is out of place. */
typedef enum xb_misplacement {
    XB_NAME_FITS,      /* it is not: the error is about something else */
    XB_NAME_UNKNOWN,   /* the content around has no such element */
    XB_NAME_ELSEWHERE, /* it has one, at another place or no further one */
    XB_NAME_FOREIGN    /* the element has a namespace */
} xb_misplacement;

/* What belongs to a recorded error of an armed context. Pointers stay valid until rtxFreeContext(), or
 * belong to constant tables. */
typedef struct xb_error_details {
    const void *item;         /* record of the innermost element around the error; null: none */
    const char *element;      /* name of that element as written, or of the one whose value failed; null */
    bool at_attribute;        /* the error's place is an attribute's name */
    bool at_tag;              /* the error's place is a tag's '<' */
    const char *const *words; /* elements, attributes, types or tokens that may stand there */
    uint32_t word_count;
    bool has_range; /* the numbers that may stand there are lowest .. highest */
    int64_t lowest;
    int64_t highest;
    xb_misplacement misplaced; /* of the element that stands there */
} xb_error_details;

/* Arms a context whose reader has not been made. XB_E_BAD_STATE when it has, XB_E_NO_MEMORY. */
int32_t rtxArmContext(xb_context *ctx);
bool rtxIsArmed(const xb_context *ctx);

/* Notes where item stands: at the selected attribute, else at the current element. is_record: the
 * element's record, which is the parent of what is noted within it. Later notes of an item replace
 * earlier ones. Notes that memory is lacking for are lost. Nothing happens unless ctx is armed; the
 * same holds for all functions below. */
void rtxNoteItem(xb_context *ctx, const void *item, bool is_record);

/* Fills *place; false when the item has not been noted. */
bool rtxPlaceOfItem(const xb_context *ctx, const void *item, xb_place *place);

/* Deals with a recorded failure of the current element's content: what is left of the content is passed
 * over, so that its end tag comes next. Returns 0, or the status to be passed up: `status` itself when
 * the context is not armed or the failure is final, else that of the failure met on the way, which has
 * been recorded. */
int32_t rtxResumeAtEnd(xb_context *ctx, int32_t status);

/* The same for a failure between two tags: the text ahead is passed over, and with skip_element the
 * element whose start tag is ahead, too. */
int32_t rtxResumeAtTag(xb_context *ctx, int32_t status, bool skip_element);

/* Looks at the tag ahead. Returns 1 for a start tag, with its local name (null when it has a namespace)
 * and its name as written, 0 for an end tag or the document's end, or a status. Its offset in *offset. */
int32_t rtxPeekTag(xb_context *ctx, const char **local, const char **name, uint64_t *offset);

/* Adds to the error recorded last what might have stood at its place. The words are copied, what they
 * point to is not. */
void rtxErrAddWords(xb_context *ctx, const char *const *words, uint32_t count);
void rtxErrAddRange(xb_context *ctx, int64_t lowest, int64_t highest);
void rtxErrAddMisplacement(xb_context *ctx, xb_misplacement misplaced);

/* Fills *details of error record index; false when there is none or ctx is not armed. */
bool rtxErrGetDetails(const xb_context *ctx, uint32_t index, xb_error_details *details);

#ifdef __cplusplus
}
#endif

#endif

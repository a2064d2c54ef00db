// A document as the checks see it: decoded by the library's own decoders, with the place of every item.
#ifndef INVCTL_CHECK_CHECKED_DOCUMENT_H
#define INVCTL_CHECK_CHECKED_DOCUMENT_H

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "OrvelianInventorySchema.h"
#include "entity_model.h"
#include "finding.h"
#include "inv_platform/xml_runtime.h"
#include "inventory_Derivations.h"

namespace invctl::check
{

enum class document_kind : uint8_t { module, chassis, power_shelf, pem, fan_tray, optics };

struct checked_document {
    std::string file;    // as the user wrote it
    std::string octets;  // the whole document as it stands in the file
    document_kind kind = document_kind::module;
    const char *root_element = nullptr;  // its name

    // The decoded root: BaseModuleType or a type derived from it (module), ChassisEntityType, PowerShelfType,
    // PEMType, FanTrayType or OpticsType; null when nothing could be decoded. Of a document with schema
    // findings it is what could be decoded: required items of failed records may be at their initial values,
    // pointers to texts may then be null.
    const void *root = nullptr;
    uint32_t root_tag = 0;  // of a module: which type its xsi:type chose, as in xb_choice
    bool has_schema_findings = false;

    std::vector<entity> entities;  // document order, the root first; parents stand before children

    std::unordered_map<const void *, const entity *> by_record;  // the same entities

    xb_context context = {};  // owns the decoded data
    int32_t status = XB_OK;   // of the decode: the first recorded error's

    checked_document() = default;
    checked_document(const checked_document &) = delete;
    checked_document &operator=(const checked_document &) = delete;
    ~checked_document();
};

// Decodes the octets at `document.octets`, which go on as far as anything can be understood, and lists the
// entities. What went wrong is in the context's error records.
void decode_document(checked_document &document);

// Where a decoded item stands: the '<' of its element (records, single values) or its attribute's name.
// Nothing for an item that the document does not give. List items are asked for by the data pointer
// of their node, octet buffers and choices' records by their own address.
std::optional<place> place_of(const checked_document &document, const void *item);

// Fills the finding's source line and the length of its caret from its place: under a whole tag's name, a
// whole attribute or a whole value. `in_value`: the place is that of a value, not of a tag or an attribute.
void show_source(const checked_document &document, finding &at, bool in_value);

// The entity whose element the decoded item stands in (or is); null when there is none.
const entity *entity_of(const checked_document &document, const void *item);

}  // namespace invctl::check

#endif

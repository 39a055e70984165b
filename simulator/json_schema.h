// Checks a JSON value against a schema. The part of JSON Schema that car files need: type,
// required, properties, additionalProperties, propertyNames, items, enum, pattern, minimum,
// maximum, minItems, maxItems, and $ref to the schema's own "$defs".
#pragma once

#include "json_lines.h"

// Throws json_error with the line of the first invalid value and the reason.
void check_against_schema(const json_value& value, const json_value& schema);

// Checks a JSON value against a schema: the part of JSON Schema that the car files need, which is
// type, required, properties, additionalProperties, propertyNames, items, enum, pattern, minimum,
// maximum, minItems, maxItems, and $ref to the schema's own "$defs".
#pragma once

#include "json_lines.h"

// Throws json_error with the line of the first value that does not fit and why.
void check_against_schema(const json_value& value, const json_value& schema);

#pragma once

// How a value is put into a line that the headless editor prints, so that no value (a plugin folder's
// name, a package, a tool's output) can start a line of its own or pass for a field separator.
#include <string>

namespace StandIn
{
	// The value with each character that could break the line shown as a visible stand-in: a C0 control
	// character or DEL as its Unicode control picture (a line feed as U+240A "␊", a tab as U+2409 "␉"), and
	// the other characters that readers take for line breaks or that have no picture (U+0080 to U+009F,
	// U+2028, U+2029) as "<U+XXXX>". Everything else, invalid UTF-8 included, is kept as it is.
	std::string ShownValue(const std::string& Utf8);

	// A field of a line whose fields are separated by " | ": as ShownValue, and each '|' shown as
	// U+00A6 "¦".
	std::string ShownField(const std::string& Utf8);
}

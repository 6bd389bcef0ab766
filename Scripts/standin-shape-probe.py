#!/usr/bin/env python3
"""Writes a C++ probe that uses every declaration of the stand-in engine's public headers the way the module
could: each class, its bases, public and protected members with their exact types (static or not, virtual or
not), free functions, enumerators, type aliases, variables and macros.

The names are probed in one file a header, which includes only that header; the members in one file that
includes every header. Compiled against the real engine headers, every error of a probe is a stand-in
declaration that UE 4.26 lacks, declares in another shape, or declares in another header.
Usage: standin-shape-probe.py <stand-in Public folder> <clang JSON AST> <probe folder>
The AST is clang's -ast-dump=json of one file that includes every public header of the stand-in."""
import json
import os
import re
import sys

PUBLIC_DIR = os.path.realpath(sys.argv[1])
AST_PATH = sys.argv[2]
PROBE_DIR = sys.argv[3]
DETAIL_NAMESPACE = "StandIn"
# What the type parameters of a function template stand for where the probe deduces them.
TEMPLATE_ARGUMENT_PROBE = "FProbeTemplateArgument"
# The command set with which the probe instantiates TCommands.
PROBE_COMMANDS = ("struct FProbeCommands : TCommands<FProbeCommands>\n{\n\tFProbeCommands() : TCommands(TEXT(\"Probe\"), FText(), NAME_None, NAME_None) {}\n"
                  "\tvirtual void RegisterCommands() override {}\n};\n\n")
# The arguments with which the probe instantiates each class template whose members it uses.
TEMPLATE_ARGUMENTS = {
	"TSharedPtr": "SWidget, ESPMode::Fast", "TSharedRef": "SWidget, ESPMode::Fast", "TWeakPtr": "SWidget, ESPMode::Fast",
	"TSharedFromThis": "SWidget, ESPMode::Fast", "TArray": "FString, FDefaultAllocator",
	"TMap": "FString, int32, FDefaultSetAllocator, TDefaultMapHashableKeyFuncs<FString, int32, false>", "TOptional": "FString",
	"TAttribute": "FText", "TUniquePtr": "FString, TDefaultDelete<FString>", "TDefaultDelete": "FString",
	"TCommands": "FProbeCommands", "SComboBox": "TSharedPtr<FString>", "TStringView": "TCHAR", "TChar": "TCHAR",
	"TIsValidVariadicFunctionArg": "int32, false", "TIsArrayOrRefOfType": "TCHAR, TCHAR",
	"FLogCategory": "ELogVerbosity::Log, ELogVerbosity::All", "FRawPtrProxy": "SWidget", "TBaseDelegate": "void, int32",
	"TSlateBaseNamedArgs": "SButton", "NamedSlotProperty": "SBox::FArguments", "TSlotBase": "FSimpleSlot",
	"TSupportsContentPaddingMixin": "FSimpleSlot", "TSupportsOneChildMixin": "FSimpleSlot",
	"TPanelChildren": "SVerticalBox::FSlot", "TSlateDelegates": "TSharedPtr<FString>",
	"TDecl": "SButton, RequiredArgs::T0RequiredArgs", "T2RequiredArgs": "int32&&, FString&&",
	"TEnumAsByte": "ESlateBrushDrawType::Type",
}


class Probe:
	"""The checks of each header: those that name its declarations, and those that use the members of its
	classes, whose parameter and argument types a module has from wherever it included them."""

	def __init__(self):
		self.sections = {}
		self.count = 0

	def add(self, origin, code, member_use=False):
		"""One check; the comment before it names the declaration, so that a compiler error points at it."""
		self.count += 1
		self.append(header_of(origin), "// %s\n%s" % (origin, code), member_use)

	def append(self, header, text, member_use=False):
		self.sections.setdefault(header, ([], []))[1 if member_use else 0].append(text)


def header_of(origin):
	"""'::FName::ToString (UObject/NameTypes.h)' -> 'UObject/NameTypes.h'."""
	return re.search(r"\(([^()]+)\)$", origin).group(1)


def split_function_type(qual_type):
	"""'R (P1, P2) const &' -> ('R', 'P1, P2', 'const &'); None for a type that is not a function type."""
	qual_type = qual_type.replace(" noexcept", "")
	end = qual_type.rfind(")")
	if end < 0:
		return None
	depth = 0
	for i in range(end, -1, -1):
		depth += {")": 1, "(": -1}.get(qual_type[i], 0)
		if depth == 0:
			return qual_type[:i].strip(), qual_type[i + 1:end].strip(), qual_type[end + 1:].strip()
	return None


def split_parameters(parameters):
	"""'A, TMap<B, C>, D' -> ['A', 'TMap<B, C>', 'D']; 'void' and '' -> []."""
	result, depth, current = [], 0, ""
	for character in parameters:
		depth += {"<": 1, "(": 1, ">": -1, ")": -1}.get(character, 0)
		if character == "," and depth == 0:
			result.append(current.strip())
			current = ""
		else:
			current += character
	if current.strip() and current.strip() != "void":
		result.append(current.strip())
	return result


class Walker:
	def __init__(self, probe):
		self.probe = probe
		self.file = None
		self.serial = 0
		self.unprobed_templates = []

	def track(self, node):
		"""clang writes a location's file only where it changes, so the file of a node is the last one written."""
		if isinstance(node, dict):
			for key, value in node.items():
				if key == "file":
					self.file = value
				elif key in ("loc", "range", "begin", "end", "spellingLoc", "expansionLoc"):
					self.track(value)

	def in_stand_in(self):
		return self.file is not None and os.path.realpath(self.file).startswith(PUBLIC_DIR + os.sep)

	def serial_next(self):
		self.serial += 1
		return self.serial

	def name(self):
		self.serial += 1
		return "Probe%d" % self.serial

	def origin(self, qualified):
		return "%s (%s)" % (qualified, os.path.relpath(os.path.realpath(self.file), PUBLIC_DIR))

	def walk(self, nodes, scope):
		for node in nodes:
			self.track(node.get("loc"))
			self.track(node.get("range"))
			if node.get("isImplicit"):
				self.skip(node)
				continue
			kind = node.get("kind")
			if kind == "NamespaceDecl" and node.get("name", "").startswith(DETAIL_NAMESPACE):
				# The stand-in's own implementation detail: not engine API, and no name the module would write.
				self.skip(node)
				continue
			if kind == "NamespaceDecl":
				self.walk(node.get("inner", []), scope + [node.get("name", "")])
				continue
			if kind == "LinkageSpecDecl":
				self.walk(node.get("inner", []), scope)
				continue
			if not self.in_stand_in() or "parentDeclContextId" in node:
				# Out-of-line definitions of members were probed with their class.
				self.skip(node)
				continue
			self.declaration(node, scope)

	def skip(self, node):
		for child in node.get("inner", []):
			if isinstance(child, dict):
				self.track(child.get("loc"))
				self.track(child.get("range"))
				self.skip(child)

	def qualify(self, scope, name):
		return "::" + "::".join([s for s in scope if s] + [name])

	def declaration(self, node, scope):
		kind, name = node.get("kind"), node.get("name")
		if kind == "CXXRecordDecl" and node.get("completeDefinition") and name:
			self.record(node, scope)
		elif kind == "ClassTemplateDecl":
			qualified = self.qualify(scope, name)
			parameters = self.template_parameters(node)
			pattern = next((c for c in node.get("inner", []) if c.get("kind") == "CXXRecordDecl"), None)
			if name in TEMPLATE_ARGUMENTS and pattern is not None and pattern.get("completeDefinition"):
				self.record(pattern, scope, self.template_context(node, TEMPLATE_ARGUMENTS[name]))
			elif pattern is not None and pattern.get("completeDefinition"):
				self.unprobed_templates.append(self.origin(qualified))
			if parameters is not None:
				probe = self.name()
				self.probe.add(self.origin(qualified), "template <template <%s> class> struct %s {};\nstatic %s<%s>* %sUse;"
				               % (parameters, probe, probe, qualified, probe))
			self.skip(node)
		elif kind == "FunctionDecl":
			qualified = self.qualify(scope, name)
			parts = split_function_type(node["type"]["qualType"])
			self.probe.add(self.origin(qualified), "static auto %s = static_cast<%s (*)(%s)>(&%s);"
			               % (self.name(), parts[0], parts[1], qualified))
			self.skip(node)
		elif kind == "FunctionTemplateDecl":
			qualified = self.qualify(scope, name)
			self.probe.add(self.origin(qualified), "namespace %s { using %s; }" % (self.name(), qualified))
			self.skip(node)
		elif kind == "EnumDecl" and name:
			self.enum(node, scope)
		elif kind == "EnumDecl":
			for enumerator in self.enumerators(node):
				qualified = self.qualify(scope, enumerator)
				self.probe.add(self.origin(qualified), self.enumerator_check(qualified))
		elif kind in ("TypedefDecl", "TypeAliasDecl", "TypeAliasTemplateDecl"):
			qualified = self.qualify(scope, name)
			if kind == "TypeAliasTemplateDecl":
				self.probe.add(self.origin(qualified), "namespace %s { using %s; }" % (self.name(), qualified))
			else:
				self.probe.add(self.origin(qualified), "using %s = %s;" % (self.name(), qualified))
			self.skip(node)
		elif kind == "VarDecl":
			qualified = self.qualify(scope, name)
			self.probe.add(self.origin(qualified), "static_assert(std::is_same<decltype(%s), %s>::value, \"\");"
			               % (qualified, node["type"]["qualType"]))
			self.skip(node)
		else:
			self.skip(node)

	def template_context(self, node, arguments):
		"""How a probe template spells the class template's parameters, their names, and its instantiation."""
		declared, names = [], []
		for child in node.get("inner", []):
			kind = child.get("kind")
			if kind not in ("TemplateTypeParmDecl", "NonTypeTemplateParmDecl"):
				continue
			name = child.get("name") or "Parameter%d" % len(names)
			pack = "..." if child.get("isParameterPack") else ""
			declared.append(("typename%s %s" if kind == "TemplateTypeParmDecl" else child["type"]["qualType"] + "%s %s") % (pack, name))
			names.append(name + pack)
		return ", ".join(declared), ", ".join(names), arguments

	def template_parameters(self, node):
		"""The template's parameter list as a template template parameter spells it; None for a template parameter."""
		parameters = []
		for child in node.get("inner", []):
			kind = child.get("kind")
			if kind == "TemplateTypeParmDecl":
				parameters.append("typename..." if child.get("isParameterPack") else "typename")
			elif kind == "NonTypeTemplateParmDecl":
				parameters.append(child["type"]["qualType"] + ("..." if child.get("isParameterPack") else ""))
			elif kind == "TemplateTemplateParmDecl":
				return None
		return ", ".join(parameters)

	def enumerators(self, node):
		"""The names of an enum's enumerators, following the locations on the way."""
		names = []
		for child in node.get("inner", []):
			self.track(child.get("loc"))
			self.track(child.get("range"))
			if child.get("kind") == "EnumConstantDecl":
				names.append(child["name"])
			self.skip(child)
		return names

	def enumerator_check(self, qualified):
		"""An enumerator of an unnamed enum: a constant that is no variable, whose type is that enum."""
		return "static_assert(std::is_enum<decltype(%s)>::value, \"\");" % qualified

	def enum(self, node, scope):
		qualified = self.qualify(scope, node["name"])
		self.probe.add(self.origin(qualified), "using %s = %s;" % (self.name(), qualified))
		enclosing = qualified if node.get("scopedEnumTag") is not None else self.qualify(scope, "")[:-2]
		for name in self.enumerators(node):
			enumerator = enclosing + "::" + name
			self.probe.add(self.origin(enumerator), "static_assert(sizeof(%s) > 0, \"\");" % enumerator)

	def record(self, node, scope, template=None):
		qualified = self.qualify(scope, node["name"])
		header = header_of(self.origin(qualified))
		derivable = not any(a.get("kind") == "FinalAttr" for a in node.get("inner", [])) and not self.has_private_virtual_destructor(node)
		members = []
		if template:
			qualified += "<%s>" % template[1]
		else:
			self.probe.add(self.origin(qualified), "using %s = %s;" % (self.name(), qualified))
		for base in node.get("bases", []):
			if base.get("access") == "public":
				members.append((self.origin(qualified + " : " + base["type"]["qualType"]),
				                "static_assert(std::is_base_of<%s, Self>::value, \"\");" % base["type"]["qualType"]))
		nested_types = []
		access = "public" if node.get("tagUsed") in ("struct", "union") else "private"
		for child in node.get("inner", []):
			self.track(child.get("loc"))
			self.track(child.get("range"))
			kind = child.get("kind")
			if kind == "AccessSpecDecl":
				access = child["access"]
				continue
			if child.get("isImplicit") or access == "private":
				self.skip(child)
				continue
			if kind in ("CXXRecordDecl", "EnumDecl", "ClassTemplateDecl", "TypedefDecl", "TypeAliasDecl"):
				if template:
					# Nested names of a class template are dependent: the probe names them through its base.
					if kind in ("TypedefDecl", "TypeAliasDecl", "CXXRecordDecl", "EnumDecl") and child.get("name"):
						nested_types.append(child["name"])
					elif kind == "EnumDecl":
						members += [(self.origin(qualified + "::" + e), self.enumerator_check("Self::" + e)) for e in self.enumerators(child)]
					self.skip(child)
					continue
				if kind == "CXXRecordDecl" and not child.get("completeDefinition"):
					self.skip(child)
					continue
				if access == "protected" and kind in ("TypedefDecl", "TypeAliasDecl"):
					# Only a derived class may name it, as the module's own classes could.
					members.append((self.origin(qualified + "::" + child["name"]), "static_assert(std::is_same<Self::%s, %s>::value, \"\");"
					                % (child["name"], child["type"]["qualType"])))
					self.skip(child)
					continue
				self.declaration(child, scope + [node["name"]])
				continue
			if child.get("explicitlyDeleted") or "auto" in child.get("type", {}).get("qualType", ""):
				self.skip(child)
				continue
			member = self.member(child, qualified, access, derivable)
			if member and template:
				# The injected class name means the instantiated class, which the probe calls Self; its nested
				# types are the probe's aliases.
				code = re.sub(r"\b%s::" % node["name"], "", member[1])
				member = (member[0], re.sub(r"\b%s\b(?!\s*<)" % node["name"], "Self", code))
			members.append(member)
			self.skip(child)
		members = [m for m in members if m]
		if not members:
			return
		if not derivable and not template:
			for origin, code in members:
				self.probe.add(origin, "static void %s() { %s }" % (self.name(), code.replace("Self::", qualified + "::")), True)
			return
		# Inside a class derived from the probed one, its nested names and protected members are in reach as
		# they are for a module class that derives from it.
		probe = self.name()
		body = [self.probe_body_line(origin, code.replace("&Self::", "&%s::" % probe).replace("&%s::operator=" % probe, "&Self::operator=").replace("decltype(Self::", "decltype(%s::" % probe)) for origin, code in members]
		self.probe.count += len(members)
		aliases = "".join("\tusing %s = typename Self::%s;\n" % (n, n) for n in nested_types)
		self.probe.append(header, "// %s\n%sstruct %s : %s\n{\n\tusing Self = %s;\n%s\tstatic void Uses()\n\t{\n%s\n\t}\n};%s"
		                        % (self.origin(qualified), "template <%s>\n" % template[0] if template else "", probe, qualified, qualified, aliases,
		                           "\n".join(body), "\ntemplate struct %s<%s>;" % (probe, template[2]) if template else ""), True)

	@staticmethod
	def has_private_virtual_destructor(node):
		"""Whether no class can derive from the record: a derived class's destructor would override one it cannot call."""
		access = "public" if node.get("tagUsed") in ("struct", "union") else "private"
		for child in node.get("inner", []):
			if child.get("kind") == "AccessSpecDecl":
				access = child["access"]
			elif child.get("kind") == "CXXDestructorDecl" and child.get("virtual") and access == "private":
				return True
		return False

	def probe_body_line(self, origin, code):
		return "\t\t// %s\n\t\t%s" % (origin, code)

	def member(self, child, qualified, access, derivable):
		kind, name = child.get("kind"), child.get("name")
		if kind == "UsingDecl":
			# A using-declaration is named by what it brings in, which the class re-exposes as its own.
			name = name.split("::")[-1]
		if kind == "CXXConversionDecl":
			# In a class template clang names the operator after the canonical parameter; the written type is its name.
			name = "operator " + split_function_type(child["type"]["qualType"])[0]
		origin = self.origin(qualified + "::" + (name or kind))
		if kind in ("CXXMethodDecl", "CXXConversionDecl"):
			parts = split_function_type(child["type"]["qualType"])
			if name == "operator=" and access != "public":
				return None
			if name == "operator=":
				# Named through the probe, the assignment would be the probe's own.
				code = "(void)static_cast<%s (Self::*)(%s) %s>(&Self::operator=);" % parts
			elif child.get("storageClass") == "static":
				code = "(void)static_cast<%s (*)(%s)>(&Self::%s);" % (parts[0], parts[1], name)
			else:
				code = "(void)static_cast<%s (Self::*)(%s) %s>(&Self::%s);" % (parts[0], parts[1], parts[2], name)
			if child.get("virtual") and derivable:
				code += " struct Override%d : Self { %s %s(%s) %s override; };" % (self.serial_next(), parts[0], name, parts[1], parts[2])
			return origin, code
		if kind == "CXXConstructorDecl":
			# A class deriving from it calls the constructor, which works for abstract classes and protected
			# constructors as a module's derived class would.
			parameters = split_parameters(split_function_type(child["type"]["qualType"])[1])
			serial = self.serial_next()
			declared = ", ".join("%s Argument%d" % (p, i) for i, p in enumerate(parameters))
			forwarded = ", ".join("static_cast<decltype(Argument%d)&&>(Argument%d)" % (i, i) for i in range(len(parameters)))
			return origin, "struct Construct%d : Self { Construct%d(%s) : Self(%s) {} };" % (serial, serial, declared, forwarded)
		if kind == "CXXDestructorDecl":
			if child.get("virtual"):
				return origin, "static_assert(std::has_virtual_destructor<Self>::value, \"\");"
			return None
		if kind == "FieldDecl":
			return origin, "static_assert(std::is_same<decltype(Self::%s), %s>::value, \"\");" % (name, child["type"]["qualType"])
		if kind == "VarDecl":
			return origin, "static_assert(std::is_same<decltype(Self::%s), %s>::value, \"\");" % (name, child["type"]["qualType"])
		if kind == "FunctionTemplateDecl" and any(c.get("kind") == "CXXConstructorDecl" for c in child.get("inner", [])):
			return None
		if kind == "FunctionTemplateDecl" and not derivable:
			return origin, self.function_template_signature(child, name)
		if kind in ("FunctionTemplateDecl", "UsingDecl"):
			return origin, "struct Using%d : Self { using Self::%s; };" % (self.serial_next(), name)
		return None

	@staticmethod
	def function_template_signature(node, name):
		"""For a class no one can derive from: the template's signature, its type parameters deduced as a probe type.
		The address is taken unevaluated, so the template's body is not instantiated."""
		function = next(c for c in node["inner"] if c.get("kind") == "CXXMethodDecl")
		qual_type = function["type"]["qualType"]
		for parameter in node["inner"]:
			if parameter.get("kind") == "TemplateTypeParmDecl":
				qual_type = re.sub(r"\b%s\b" % parameter["name"], TEMPLATE_ARGUMENT_PROBE, qual_type)
		parts = split_function_type(qual_type)
		if function.get("storageClass") == "static":
			target = "%s (*)(%s)" % parts[:2]
		else:
			target = "%s (Self::*)(%s) %s" % parts
		return "(void)sizeof(decltype(static_cast<%s>(&Self::%s)));" % (target, name)


def macros(probe):
	for folder, _, files in sorted(os.walk(PUBLIC_DIR)):
		for file in sorted(files):
			path = os.path.join(folder, file)
			with open(path, encoding="utf-8") as handle:
				text = handle.read()
			for name in re.findall(r"^\s*#\s*define\s+(\w+)", text, re.M):
				probe.add("macro %s (%s)" % (name, os.path.relpath(path, PUBLIC_DIR)),
				          "#ifndef %s\n#error %s is not defined\n#endif" % (name, name))


def carrier(header, headers):
	"""The header a module includes to reach this one: itself, or for an .inl the header that includes it."""
	if header.endswith(".h"):
		return header
	for candidate in headers:
		with open(os.path.join(PUBLIC_DIR, candidate), encoding="utf-8") as handle:
			if re.search(r'^\s*#\s*include\s+"%s"' % re.escape(header), handle.read(), re.M):
				return candidate
	raise SystemExit("standin-shape-probe: no public header includes %s" % header)


def main():
	with open(AST_PATH, encoding="utf-8") as handle:
		tree = json.load(handle)
	probe = Probe()
	walker = Walker(probe)
	walker.walk(tree.get("inner", []), [])
	macros(probe)
	headers = []
	for folder, _, files in sorted(os.walk(PUBLIC_DIR)):
		headers += sorted(os.path.relpath(os.path.join(folder, f), PUBLIC_DIR) for f in files if f.endswith(".h"))
	os.makedirs(PROBE_DIR, exist_ok=True)
	# The checks that name declarations see only their own header, as a module file that includes just that
	# header would: a declaration 4.26 keeps in another header fails there.
	for header, (checks, _) in sorted(probe.sections.items()):
		if not checks:
			continue
		with open(os.path.join(PROBE_DIR, re.sub(r"[/.]", "_", header) + ".cpp"), "w", encoding="utf-8") as out:
			out.write("// Generated: names the declarations of the stand-in's %s.\n" % header)
			out.write('#include "%s"\n#include <type_traits>\n\n' % carrier(header, headers))
			out.write("\n".join(checks) + "\n")
	# Members are used with complete parameter and argument types, as a module has them, in one probe.
	with open(os.path.join(PROBE_DIR, "members.cpp"), "w", encoding="utf-8") as out:
		out.write("// Generated: uses the members of every public class of the stand-in.\n")
		out.write("".join('#include "%s"\n' % h for h in headers) + "#include <type_traits>\n\n" + PROBE_COMMANDS
		          + "struct %s {};\n\n" % TEMPLATE_ARGUMENT_PROBE)
		out.write("\n".join(text for _, (_, member_uses) in sorted(probe.sections.items()) for text in member_uses) + "\n")
	print("%d declarations probed in %d headers; members not probed of the class templates %s"
	      % (probe.count, len(probe.sections), ", ".join(walker.unprobed_templates)))


main()

# Tells a played session to a person: awk -f show_session.awk SESSION ANSWERS
#
# The session's own remarks as they stand, each request in words, each drawn panel and each form that was shown as a
# picture, and of any other answer what it adds. A session is one JSON object a line; an answer stands for each line that is one.

BEGIN {
  words["connect"] = "The host opens the database {string}."
  words["answer"] = "From now on the host answers the library's asking for the database with {string}."
  words["disconnect"] = "The database is closed from outside."
  words["unload"] = "The host drops all panels and unloads the library."
  words["new"] = "The host makes the panel {panel}, a {class}."
  words["drop"] = "The host drops the panel {panel}."
  words["show"] = "The host shows the panel {panel}."
  words["hide"] = "The host hides the panel {panel}."
  words["let"] = "The host writes {value} into {panel}.{name}."
  words["get"] = "The host reads {panel}.{name}."
  words["call"] = "The host calls {panel}.{name} {args}"
  words["lookup"] = "The host looks up {name} {args}"
  words["classes"] = "Which panels are there?"
  words["members"] = "Which members has {class}?"
  words["today"] = "It is {date}."
  words["focus"] = "The operator goes to {widget}."
  words["leave"] = "The operator leaves the panels."
  words["type"] = "The operator types {keys}"
  words["caret"] = "The operator selects {length} characters from {start} on."
  words["paste"] = "The operator pastes {text}"
  words["click"] = "The operator clicks {widget}."
  words["choose"] = "The operator chooses {item}{index} in {widget}."
  words["operator"] = "When {form} shows, the operator will {acts}."
  words["look"] = "How does {panel}.{widget} stand?"
  words["look at all"] = "How do the widgets of {panel} stand?"
  words["draw"] = "The panel {panel}:"
  words["focused"] = "Who has the focus?"
  words["forms"] = "Which forms are loaded?"
  words["journal"] = "What has happened?"
  act_words["row"] = "select row "
  act_words["double"] = "double-click row "
  act_words["column"] = "click the head of column "
  act_words["key"] = "press "
  act_words["click"] = "click "
  act_words["close"] = "close it"
  act_words["look"] = "look at it"
  # Whether %c takes characters, or bytes.
  takes_characters = sprintf("%c", 233) == "\303\251"
  mark = "\357\273\277"
  answers = ARGV[2]
  ARGC = 2
}

# The end of the JSON value that begins at a place of a text.
function value_end(text, at,    depth, c) {
  depth = 0
  for (; at <= length(text); ++at) {
    c = substr(text, at, 1)
    if (c == "\"") {
      while (++at <= length(text) && (c = substr(text, at, 1)) != "\"") if (c == "\\") ++at
    } else if (c == "[" || c == "{") {
      ++depth
    } else if (c == "]" || c == "}") {
      if (depth == 0) return at - 1
      --depth
    } else if (c == "," && depth == 0) {
      return at - 1
    }
    if (depth == 0 && c ~ /["\]}]/) return at
  }
  return length(text)
}

# What a JSON string says, without its quotes; any other value as it is written. Control characters are blanks.
function plain(value,    said, at, c, code) {
  if (value !~ /^"/) return value
  value = substr(value, 2, length(value) - 2)
  while (at = index(value, "\\")) {
    c = substr(value, at + 1, 1)
    said = said substr(value, 1, at - 1)
    value = substr(value, at + 2)
    if (c ~ /[bfnrt]/) said = said " "
    else if (c != "u") said = said c
    else {
      code = hexadecimal(substr(value, 1, 4))
      value = substr(value, 5)
      if (code >= 55296 && code < 56320 && value ~ /^\\u[dD][c-fC-F]/) {
        code = (code - 55296) * 1024 + hexadecimal(substr(value, 3, 4)) - 56320 + 65536
        value = substr(value, 7)
      }
      said = said character(code)
    }
  }
  return said value
}

function hexadecimal(digits,    i, number) {
  for (i = 1; i <= length(digits); ++i) {
    number = number * 16 + index("0123456789abcdef", tolower(substr(digits, i, 1))) - 1
  }
  return number
}

# A code's character in UTF-8; half a pair stands for none.
function character(code) {
  if (code < 32 || code == 127) return " "
  if (code >= 55296 && code < 57344) code = 65533
  if (code < 128 || takes_characters) return sprintf("%c", code)
  if (code < 2048) return sprintf("%c%c", 192 + int(code / 64), 128 + code % 64)
  if (code < 65536) return sprintf("%c%c%c", 224 + int(code / 4096), 128 + int(code / 64) % 64, 128 + code % 64)
  return sprintf("%c%c%c%c", 240 + int(code / 262144), 128 + int(code / 4096) % 64, 128 + int(code / 64) % 64,
                 128 + code % 64)
}

# Takes a JSON object apart into fields[key]; gives the number of them, and their keys in order in keys[].
function take_apart(object, fields, keys,    at, end, key, count) {
  split("", fields)
  split("", keys)
  at = index(object, "{") + 1
  while (match(substr(object, at), /^[ ,]*"/)) {
    at += RLENGTH - 1
    end = value_end(object, at)
    key = plain(substr(object, at, end - at + 1))
    at = end + 1
    match(substr(object, at), /^ *: */)
    at += RLENGTH
    end = value_end(object, at)
    fields[key] = substr(object, at, end - at + 1)
    keys[++count] = key
    at = end + 1
  }
  return count
}

function in_words(request, fields,    text, key, wanted, rest) {
  wanted = plain(fields["do"])
  if (!(wanted in words)) return request
  if (wanted == "show" && fields["visible"] == "false") wanted = "hide"
  if (wanted == "look" && !("widget" in fields)) wanted = "look at all"
  text = words[wanted]
  while (match(text, /[{][a-z]+[}]/)) {
    key = substr(text, RSTART + 1, RLENGTH - 2)
    rest = substr(text, RSTART + RLENGTH)
    text = substr(text, 1, RSTART - 1)
    text = text "\001" field_in_words(key, fields) "\002" rest
    # What was put in may hold braces of its own, as keys do: they are out of reach until all is put in.
    text = hidden(text)
  }
  gsub(/\003/, "{", text)
  sub(/ +$/, "", text)
  return text
}

function field_in_words(key, fields) {
  if (!(key in fields)) return ""
  return key == "acts" ? acts_in_words(fields[key]) : plain(fields[key])
}

function acts_in_words(list,    items, count, i, act, keys, said, one) {
  count = take_list_apart(list, items)
  for (i = 1; i <= count; ++i) {
    if (take_apart(items[i], act, keys) != 1 || !(keys[1] in act_words)) one = items[i]
    else one = act_words[keys[1]] (act[keys[1]] == "true" ? "" : plain(act[keys[1]]))
    said = said (i == 1 ? "" : i < count ? ", " : " and ") one
  }
  return count ? said : "close it"
}

function hidden(text,    from, to, inside) {
  from = index(text, "\001")
  to = index(text, "\002")
  inside = substr(text, from + 1, to - from - 1)
  gsub(/[{]/, "\003", inside)
  return substr(text, 1, from - 1) inside substr(text, to + 1)
}

# Takes a JSON list apart into items[1], items[2] …; gives the number of them.
function take_list_apart(list, items,    at, end, count) {
  split("", items)
  at = index(list, "[") + 1
  while (match(substr(list, at), /^[ ,]*[^], ]/)) {
    at += RLENGTH - 1
    end = value_end(list, at)
    items[++count] = substr(list, at, end - at + 1)
    at = end + 1
  }
  return count
}

function show_list(list, indent,    items, count, i) {
  count = take_list_apart(list, items)
  for (i = 1; i <= count; ++i) print indent plain(items[i])
}

function show_failures(list,    items, count, i, failure, keys) {
  count = take_list_apart(list, items)
  for (i = 1; i <= count; ++i) {
    take_apart(items[i], failure, keys)
    print "    " plain(failure["event"]) " FAILED, " plain(failure["failure"]) ": " plain(failure["message"])
  }
}

# Each form by its caption and what stood in its columns, the selected row marked.
function show_forms(list,    items, count, i, form, keys) {
  count = take_list_apart(list, items)
  for (i = 1; i <= count; ++i) {
    take_apart(items[i], form, keys)
    print "    " plain(form["caption"])
    if ("rows" in form) show_table(form["columns"], form["rows"], ("selected" in form) ? form["selected"] + 1 : 0)
  }
}

function show_table(columns, rows, selected,    items, count, i, j, row, cells, column, keys, texts, widths, line) {
  count = take_list_apart(columns, items)
  for (j = 1; j <= count; ++j) {
    take_apart(items[j], column, keys)
    texts[0, j] = plain(column["caption"])
    widths[j] = characters(texts[0, j])
  }
  row = take_list_apart(rows, items)
  for (i = 1; i <= row; ++i) {
    take_list_apart(items[i], cells)
    for (j = 1; j <= count; ++j) {
      texts[i, j] = plain(cells[j])
      if (characters(texts[i, j]) > widths[j]) widths[j] = characters(texts[i, j])
    }
  }
  for (i = 0; i <= row; ++i) {
    line = (i > 0 && i == selected) ? "    > " : "      "
    for (j = 1; j <= count; ++j) line = line texts[i, j] sprintf("%" (widths[j] - characters(texts[i, j]) + 2) "s", "")
    sub(/ +$/, "", line)
    print line
  }
}

# How many characters a text has: where it is taken by bytes, those that go on with a character do not count.
function characters(text) {
  if (!takes_characters) gsub("[\200-\277]", "", text)
  return length(text)
}

function show_answer(answer,    fields, keys, count, i, key) {
  count = take_apart(answer, fields, keys)
  if (fields["ok"] == "false") print "    FAILED, " plain(fields["failure"]) ": " plain(fields["message"])
  for (i = 1; i <= count; ++i) {
    key = keys[i]
    if (key == "lines") show_list(fields[key], "    ")
    else if (key == "failures") show_failures(fields[key])
    else if (key == "shown") show_forms(fields[key])
    else if (key == "value") print "    -> " plain(fields[key])
    else if (key ~ /^(ok|failure|message)$/ || fields[key] == "0" || fields[key] == "[]") continue
    else if (fields[key] ~ /^\[/) {
      print "    " key ":"
      show_list(fields[key], "      ")
    } else print "    " key ": " plain(fields[key])
  }
}

NR == 1 && index($0, mark) == 1 { $0 = substr($0, length(mark) + 1) }
/^[ \t\r]*$/ { print ""; next }
/^#/ { sub(/^# ?/, ""); print; next }
{
  take_apart($0, request, request_keys)
  print "  " in_words($0, request)
  if ((getline answer < answers) > 0) show_answer(answer)
  else { print "    no answer: the session ended here"; exit }
}

// The library for hosts that are not compiled with it: a component with a C interface. docs/component.md leads through
// it.
//
// All calls come from one thread, the one that made the screen. Texts are UTF-8; those handed in end with a zero byte
// except where a length is told. Names of classes, members and widgets' properties match without regard to case; names
// of widgets and forms are exact.
//
// Most functions give a status, QVN_OK or the reason for which the call was not done to its end, and leave a message;
// no exception leaves the library. What is given back through a pointer is empty then: a value QVN_EMPTY, a reference
// null. What a call has written before it fails stays written, as does what the operator has typed. A null where none
// is allowed, and an object of another kind than the call is for, are QVN_INVALID_ARGUMENT.
#pragma once

// NOLINTBEGIN(modernize-use-using, modernize-deprecated-headers): this is C.
#include <stddef.h>
#include <stdint.h>

// How functions take their arguments: QVN_ENTRY the four entry points, QVN_CALL the others and the handlers of hosts.
#if defined(_WIN32) && (defined(__i386__) || defined(_M_IX86))
#define QVN_ENTRY __stdcall
#define QVN_CALL __cdecl
#else
#define QVN_ENTRY
#define QVN_CALL
#endif
#if defined(__GNUC__) && !defined(_WIN32)
#define QVN_API __attribute__((visibility("default")))
#else
#define QVN_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/// What came of a call.
enum {
  QVN_OK = 0,
  QVN_TYPE_MISMATCH = 1,
  QVN_OVERFLOW = 2,
  QVN_DIVISION_BY_ZERO = 3,
  QVN_SUBSCRIPT_OUT_OF_RANGE = 4,
  QVN_INVALID_USE_OF_NULL = 5,
  QVN_INVALID_CALL = 6,
  QVN_NO_SUCH_MEMBER = 7,
  QVN_DATABASE = 8,
  QVN_INVALID_ARGUMENT = 9,  /// the call itself is wrong, nothing was done
  QVN_OUT_OF_MEMORY = 10,
  QVN_UNKNOWN = 11  /// what the library does not foresee
};

/// The message of the last call that gave a status, the entry points among them: it names panel and member or widget
/// where there are such, and the offending text as it was handed in, and is empty if the call has succeeded. It stands
/// until the next such call.
QVN_API const char* QVN_CALL qvn_last_message(void);
/// A status in words, "type mismatch", "invalid argument"; empty for QVN_OK and for what is none.
QVN_API const char* QVN_CALL qvn_status_name(int32_t status);
/// Leaves a message, none for null, and gives the status back: `return qvn_fail(status, message);` ends a handler that
/// fails.
QVN_API int32_t QVN_CALL qvn_fail(int32_t status, const char* message);
/// The library's version, "0.1.0".
QVN_API const char* QVN_CALL qvn_version(void);

// Objects: a screen, a class object, a panel, an event object, a subscription. Whoever is given one by a function has a
// reference to it, and gives it back by qvn_release. One that is handed to a handler, or to a function, is lent.

typedef struct qvn_object qvn_object;

/// One reference more; gives their count, 0 for null.
QVN_API int32_t QVN_CALL qvn_addref(qvn_object* object);
/// One reference less; gives what is left, 0 for null. An object goes with its last reference. A panel that goes inside
/// a handler, its own among them, goes at once; nothing more is told of it. Where an outer handler still has it lent,
/// it is QVN_INVALID_ARGUMENT to the calls made with it but qvn_class_of, and counts 0 for good.
QVN_API int32_t QVN_CALL qvn_release(qvn_object* object);
/// The name of the object's class: that of the panel, or "clsQVN_Eventi", "screen", "class", "subscription". It stands
/// as long as the library.
QVN_API int32_t QVN_CALL qvn_class_of(const qvn_object* object, const char** name);

// Values.

/// What a value holds, and the member of `as` that has it.
enum {
  QVN_EMPTY = 0,    /// nothing was ever put there
  QVN_NULL = 1,     /// unknown
  QVN_BOOLEAN = 2,  /// boolean: 0 false, any other true
  QVN_BYTE = 3,
  QVN_INT16 = 4,
  QVN_INT32 = 5,
  QVN_DOUBLE = 6,    /// number
  QVN_CURRENCY = 7,  /// currency: ten-thousandths, 12500 being 1,25
  QVN_DECIMAL = 8,
  QVN_DATE = 9,    /// date: whole days from 30/12/1899, which is no date
  QVN_TEXT = 10,   /// text
  QVN_ARRAY = 11,  /// array, of currency
  QVN_OBJECT = 12  /// object: an event object
};

/// Sign, 96-bit magnitude with its lowest word first, and 0 to 28 decimals.
typedef struct qvn_decimal {
  uint32_t magnitude[3];
  uint8_t decimals;
  uint8_t negative;
} qvn_decimal;

/// So many bytes, which may hold zero bytes. One that is given back has a zero byte behind it.
typedef struct qvn_text {
  const char* data;
  size_t length;
} qvn_text;

/// Ten-thousandths, row after row. An array of one dimension has 0 columns.
typedef struct qvn_array {
  const int64_t* values;
  size_t rows;
  size_t columns;
} qvn_array;

typedef struct qvn_value {
  int32_t kind;
  /// Not 0 where text, array or object belong to the value, which qvn_value_clear then gives back. The library sets it
  /// in the values that it gives, and never writes, frees or keeps what a host hands in with 0.
  int32_t owned;
  union {
    int32_t boolean;
    uint8_t byte;
    int16_t int16;
    int32_t int32;
    double number;
    int64_t currency;
    qvn_decimal decimal;
    int32_t date;
    qvn_text text;
    qvn_array array;
    qvn_object* object;
  } as;
} qvn_value;

// What a function gives through a `qvn_value*` takes the place of what stood there, which is not looked at: a value
// that owns something is cleared first. All zeros are an empty value.

/// Gives back what the value owns and leaves it empty. Null is allowed.
QVN_API void QVN_CALL qvn_value_clear(qvn_value* value);
/// The value as another kind, under the conversions of the fields: numbers are checked for their range and round half
/// to even, those of days drop their decimals, a text is read in Italian form, and any number, date or boolean has its
/// text. QVN_EMPTY, QVN_NULL and QVN_OBJECT are nothing to convert to. Both may be the same value, which then gives
/// back what it owned.
QVN_API int32_t QVN_CALL qvn_value_convert(const qvn_value* value, int32_t kind, qvn_value* converted);

// The component: registered, asked for class objects, unloaded. These four bear the names and the results that the
// component systems of hosts look for.

#define QVN_S_OK ((int32_t)0)
#define QVN_S_FALSE ((int32_t)1)
#define QVN_E_NOINTERFACE ((int32_t)(-2147467262))              // 0x80004002
#define QVN_E_POINTER ((int32_t)(-2147467261))                  // 0x80004003
#define QVN_E_UNEXPECTED ((int32_t)(-2147418113))               // 0x8000FFFF
#define QVN_E_OUTOFMEMORY ((int32_t)(-2147024882))              // 0x8007000E
#define QVN_CLASS_E_CLASSNOTAVAILABLE ((int32_t)(-2147221231))  // 0x80040111
#define QVN_SELFREG_E_CLASS ((int32_t)(-2147220991))            // 0x80040201

/// The one interface of class objects.
#define QVN_CLASS_INTERFACE "qvn.class.1"

/// Where DllRegisterServer writes its manifest, from now on; null for nowhere, as to begin with.
QVN_API int32_t QVN_CALL qvn_manifest_path(const char* path);
/// Writes the manifest: the classes with the name, kind and type of each member in interface order, as JSON.
/// QVN_S_FALSE, and nothing is written, where no path was told; QVN_SELFREG_E_CLASS, with a message, where it cannot be
/// written or the path names a file that is no manifest of this library.
QVN_API int32_t QVN_ENTRY DllRegisterServer(void);
/// Removes the manifest. QVN_S_FALSE where no path was told or no file is there; QVN_SELFREG_E_CLASS where the file is
/// no manifest of this library, which then stays, or cannot be removed.
QVN_API int32_t QVN_ENTRY DllUnregisterServer(void);
/// Gives the class object of a class. With a message each, QVN_CLASS_E_CLASSNOTAVAILABLE, QVN_E_NOINTERFACE for an
/// interface other than QVN_CLASS_INTERFACE, QVN_E_POINTER for a null.
QVN_API int32_t QVN_ENTRY DllGetClassObject(const char* class_name, const char* interface_name, void** object);
/// QVN_S_OK where no object of the library lives and no call of it is under way, QVN_S_FALSE otherwise. Values that
/// own texts and arrays count for nothing, and are cleared before the library is unloaded.
QVN_API int32_t QVN_ENTRY DllCanUnloadNow(void);

/// The names of the classes, by index from 0: the seventeen panels in order of their names, then "clsQVN_Eventi".
/// QVN_SUBSCRIPT_OUT_OF_RANGE behind the last. The name stands as long as the library.
QVN_API int32_t QVN_CALL qvn_class_at(int32_t index, const char** name);

/// A screen without a display, with the library on it: widgets and forms that live in memory, and the databases that
/// were built in, "sqlite:" where SQLite was. The connection and the shared event object live as long as the screen.
/// "invalid call" while another screen lives; one lives until all its references and all its panels have gone.
QVN_API int32_t QVN_CALL qvn_screen_create(qvn_object** screen);
/// Fixes today's date, in days as in QVN_DATE; until then it is the system's.
QVN_API int32_t QVN_CALL qvn_screen_today(qvn_object* screen, int32_t days);

/// A new object of a class. A panel is placed on the screen, which it keeps, under the host's name for it, which
/// messages begin with. An instance of clsQVN_Eventi needs neither; the library never fires on it, but on the one that
/// panels give as `Events`.
QVN_API int32_t QVN_CALL qvn_create(qvn_object* class_object, qvn_object* screen, const char* name,
                                    qvn_object** object);

// Members, of panels and of event objects.

/// What can be done with a member.
enum { QVN_GET = 0, QVN_LET = 1, QVN_GET_LET = 2, QVN_METHOD = 3, QVN_EVENT = 4 };

/// Name and type stand as long as the library. The type is that of the property or of a method's result, in words
/// ("16-bit integer", "text"), and empty for none.
typedef struct qvn_member {
  const char* name;
  const char* type;
  int32_t kind;
} qvn_member;

/// A member by its index from 0 in interface order, of a panel, an event object, or a class object for its class.
/// QVN_SUBSCRIPT_OUT_OF_RANGE behind the last.
QVN_API int32_t QVN_CALL qvn_member_at(const qvn_object* object, int32_t index, qvn_member* member);
/// Reads a property.
QVN_API int32_t QVN_CALL qvn_get(qvn_object* object, const char* name, qvn_value* value);
/// Writes a property; the value is converted to its type.
QVN_API int32_t QVN_CALL qvn_let(qvn_object* object, const char* name, const qvn_value* value);
/// Calls a method, which no argument is changed by. The result may be null where none is wanted, and is none of the
/// arguments.
QVN_API int32_t QVN_CALL qvn_call(qvn_object* object, const char* name, const qvn_value* arguments, size_t count,
                                  qvn_value* result);

// Handlers. Each function gives a subscription, and the handler is called until that is released; several are called
// in the order of their subscription, one that was subscribed twice twice. `data` comes back as it was given. A handler
// may call the library and release anything, its own subscription and panel among them. A handler does not throw. The
// texts that it is handed stand until it returns. Where its status fails something, one that is no kind of failure,
// from QVN_INVALID_ARGUMENT on, fails as QVN_INVALID_CALL.

/// The library misses its database: the host calls ImpostaDB now, on the event object. A status other than QVN_OK fails
/// what asked for the database, with the last message.
typedef int32_t(QVN_CALL* qvn_manca_db_handler)(void* data);
QVN_API int32_t QVN_CALL qvn_on_manca_db(qvn_object* events, qvn_manca_db_handler handler, void* data,
                                         qvn_object** subscription);
/// A property of the panel has changed; the name's case may differ from the property's own. A status other than QVN_OK
/// fails what made the change, with the last message.
typedef int32_t(QVN_CALL* qvn_changed_handler)(void* data, qvn_object* panel, const char* name);
QVN_API int32_t QVN_CALL qvn_on_changed(qvn_object* panel, qvn_changed_handler handler, void* data,
                                        qvn_object** subscription);
/// A rule that the operator's hand started has failed, at a widget and an event of it ("KeyPress", "Change", …); the
/// operator goes on.
typedef void(QVN_CALL* qvn_failed_handler)(void* data, qvn_object* panel, const char* widget, const char* event,
                                           int32_t status, const char* message);
QVN_API int32_t QVN_CALL qvn_on_failed(qvn_object* panel, qvn_failed_handler handler, void* data,
                                       qvn_object** subscription);

/// What happens to one of the library's own windows: the list, the wait form, the viewers.
enum { QVN_FORM_LOADED = 0, QVN_FORM_SHOWN = 1, QVN_FORM_HIDDEN = 2, QVN_FORM_UNLOADED = 3 };
/// A form was loaded; stands modally, and waits for the operator; was hidden; was unloaded. At QVN_FORM_SHOWN a host
/// may read the form and lay down what the operator does at it, unless that was laid down before.
typedef void(QVN_CALL* qvn_form_handler)(void* data, qvn_object* screen, const char* form, int32_t event);
QVN_API int32_t QVN_CALL qvn_on_form(qvn_object* screen, qvn_form_handler handler, void* data,
                                     qvn_object** subscription);

// The operator: what a person would do at the screen. What the rules of the panels fail with on the way goes to
// qvn_on_failed; "invalid call" is what nobody can do, as typing where nothing has the focus, and "no such member" a
// widget that is not there.

/// Types into what has the focus, key by key. Characters stand for themselves, "{{" for a brace; {Enter} {Tab}
/// {ShiftTab} {Backspace} {Delete} {Escape} {Left} {Right} {Up} {Down} {Home} {End} for the keys of those names.
QVN_API int32_t QVN_CALL qvn_operator_type(qvn_object* screen, const char* keys);
/// Pastes into the field with the focus, up to the first character that it refuses.
QVN_API int32_t QVN_CALL qvn_operator_paste(qvn_object* screen, const char* text);
/// Sets the selection of the field with the focus, in characters.
QVN_API int32_t QVN_CALL qvn_operator_select(qvn_object* screen, int32_t start, int32_t length);
/// Moves the focus to a widget of a panel, as with the mouse.
QVN_API int32_t QVN_CALL qvn_operator_focus(qvn_object* panel, const char* widget);
/// The focus leaves the panels for something else.
QVN_API int32_t QVN_CALL qvn_operator_leave(qvn_object* screen);
/// Clicks a button or a check box; one that is disabled or hidden does nothing.
QVN_API int32_t QVN_CALL qvn_operator_click(qvn_object* panel, const char* widget);
/// Picks an item of a closed list, by its text.
QVN_API int32_t QVN_CALL qvn_operator_choose(qvn_object* panel, const char* widget, const char* item);

/// One thing that the operator does at a form; rows from 0 in the order shown, column heads from 1.
enum {
  QVN_ACT_ROW = 0,     /// selects row `number`
  QVN_ACT_DOUBLE = 1,  /// double-clicks row `number`
  QVN_ACT_COLUMN = 2,  /// clicks head `number`
  QVN_ACT_KEY = 3,     /// presses the one key `text`
  QVN_ACT_CLICK = 4,   /// clicks the button or check box `text`
  QVN_ACT_CLOSE = 5    /// closes the window
};

typedef struct qvn_act {
  int32_t kind;
  int32_t number;
  const char* text;
} qvn_act;

/// Lays down what the operator does at the next showing of a form of that name. One for which nothing was laid down, or
/// that still stands when its acts are done, is closed.
QVN_API int32_t QVN_CALL qvn_operator_lay_down(qvn_object* screen, const char* form, const qvn_act* acts, size_t count);
/// The acts that could not be done since this was last asked, one a line, as "form: why"; an empty text for none.
QVN_API int32_t QVN_CALL qvn_operator_failed_acts(qvn_object* screen, qvn_value* text);

// What is to be seen.

/// How often the library has beeped since the screen was made.
QVN_API int32_t QVN_CALL qvn_screen_beeps(qvn_object* screen, int32_t* beeps);
/// What has the focus, as "panel.widget", by the host's name of the panel; an empty text for nothing.
QVN_API int32_t QVN_CALL qvn_screen_focused(qvn_object* screen, qvn_value* place);
/// The name of a form that is loaded now, by index from 0 in the order of loading. QVN_SUBSCRIPT_OUT_OF_RANGE behind
/// the last.
QVN_API int32_t QVN_CALL qvn_form_at(qvn_object* screen, int32_t index, qvn_value* name);
/// How many rows and columns the list or table of a loaded form has, 0 and 0 where it has none. QVN_NO_SUCH_MEMBER if
/// no form of the name is loaded, as below.
QVN_API int32_t QVN_CALL qvn_form_size(qvn_object* screen, const char* form, int32_t* rows, int32_t* columns);
/// A text of it, by row in the order shown and column, both from 0; row -1 has the heads.
QVN_API int32_t QVN_CALL qvn_form_text(qvn_object* screen, const char* form, int32_t row, int32_t column,
                                       qvn_value* text);

/// Whether the panel is shown, as it is to begin with.
QVN_API int32_t QVN_CALL qvn_panel_show(qvn_object* panel, int32_t visible);
/// The name of a widget of the panel, by index from 0 in tab order. QVN_SUBSCRIPT_OUT_OF_RANGE behind the last. It
/// stands as long as the library.
QVN_API int32_t QVN_CALL qvn_widget_at(qvn_object* panel, int32_t index, const char** name);
/// What a widget shows, by property: Kind ("text box", …), Enabled, Visible, BackColor, ForeColor, TabIndex, ToolTip,
/// Left, Top, Width and Height in twips of all; Text, Caption, Value, ListIndex, ListCount, SelStart and SelLength of
/// those that have them. QVN_NO_SUCH_MEMBER for another property, and for a widget that is not there.
QVN_API int32_t QVN_CALL qvn_widget_get(qvn_object* panel, const char* widget, const char* property, qvn_value* value);

#ifdef __cplusplus
}
#endif
// NOLINTEND(modernize-use-using, modernize-deprecated-headers)

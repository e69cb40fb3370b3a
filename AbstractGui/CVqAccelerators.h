#pragma once

#include "AbstractGui/VqAccelFlags.h"
#include "arbor_qml_support_export.h"
#include "system/VqText.h"
#include "system/VqTypes.h"

class CVqAccelRecords;

/// A flat table that maps key combinations to command identifiers.
///
/// A record holds an identifier, an opaque target of the caller, a key, its modifier flags and whether it is
/// enabled. Records keep the order in which they were added and nothing about them is unique: whoever does
/// not want a duplicate looks first. A menu owns two tables; an application may build one by itself and swap
/// it into a menu.
///
/// A key is a virtual-key value (0x41 to 0x5A the letters, 0x30 to 0x39 the digits, 112 to 135 F1 to F24,
/// ...); 0xFFFF means no key. Flags: 1 Alt, 2 Ctrl, 4 Shift, 16 the key is a virtual key, which every record
/// that came from a text carries and which Translate() asks for.
///
/// Operations that return `int` give 0 when done and -13 when there is no such record, unless told otherwise.
/// A null text reads as the empty text. All operations belong to the GUI thread.
///
///     CVqAccelerators keys;
///     keys.AddAccelKey(40, VQ_TEXT("Ctrl+Shift+S"), 0);
///     vq_uint64 target = 0;
///     vq_uint32 id = 0;
///     keys.Translate(VQ_TEXT('S'), vq_accel_ctrl | vq_accel_shift, target, id); // true, id is 40
class ARBOR_QML_SUPPORT_EXPORT CVqAccelerators
{
public:
    /// An empty table that translates.
    CVqAccelerators();

    /// Frees the records. Of two tables that share them (see operator=) only one may get here.
    ~CVqAccelerators();

    /// Both copies are shallow on purpose: afterwards both tables hold the same records, what one adds the
    /// other sees, and each destructor would free them. The records that the left side held are not freed.
    /// AddAllFrom() makes a copy that stands alone. (Held by the test ShallowCopySharesTheRecords.)
    CVqAccelerators(const CVqAccelerators& other) = default;
    CVqAccelerators& operator=(const CVqAccelerators& other);

    // Adding -----------------------------------------------------------------------------------------

    /// Appends an enabled record and returns 0.
    int AddAccelKey(vq_uint32 id, vq_uint32 flags, vq_wchar key, vq_uint64 target);

    /// Appends what `text` names and returns -4, whatever was added.
    ///
    /// One key text adds one record. A list with commas does not add its later keys: at each comma, and at
    /// the end, as many units as have passed since the last success are read, but always from the very start
    /// of `text`. "Ctrl+A,Ctrl+B" adds Ctrl+A twice; "Ctrl+Shift+Z, Ctrl+Y" adds Ctrl+Shift+Z and Ctrl+S
    /// (held by the test EachPassOfAListReadsFromTheStart). Add further keys with flags and key instead.
    ///
    /// 512 units or more since the last success end the process with std::abort(): check the length of texts
    /// that come from outside.
    int AddAccelKey(vq_uint32 id, const vq_wchar* text, vq_uint64 target);

    /// Appends every record of `other` in its order, and returns 0. `other` may be this table.
    int AddAllFrom(CVqAccelerators& other);

    // Switching --------------------------------------------------------------------------------------

    /// Marks every record with `id`; returns 0, also when there is none. The mark is kept for readers only:
    /// a record that is switched off still translates (held by the test DisabledRecordStillTranslates).
    int EnableAccelKey(vq_uint32 id, bool enable);

    /// Turns Translate() of this table on or off; returns 0.
    int EnableAccelTranslation(bool enable);

    // Looking up -------------------------------------------------------------------------------------
    //
    // A search with an index passed by reference begins at that position. A hit moves the index behind the
    // record and a miss moves it to the count, so that calling again goes on. An index that is negative or
    // not below the count gives -13 and stays as it was.

    /// Finds the next record with exactly these `flags` and this `key`. A hit stores its identifier; `id` may
    /// be null.
    int FindId(vq_uint32 flags, vq_wchar key, int& index, vq_uint32* id) const;

    /// Returns the identifier of the record at `index`, 0 when `index` is not below the count. An identifier
    /// of 0 looks like the end to whoever walks by index.
    vq_uint32 GetAccelIdByIndex(vq_uint32 index) const;

    /// Returns the position of the first record at or after `index` with `id`: -1 when there is none, -13
    /// when `index` is out of range. `index` never moves.
    int GetAccelIndexById(vq_uint32 id, int& index) const;

    /// Finds the next record with `id`. A hit stores flags and key; either pointer may be null.
    int GetAccelKey(vq_uint32 id, int& index, vq_uint32* flags, vq_wchar* key) const;

    /// Finds the next record with `id`. A hit stores the text that PrintAccel() gives, with its demand on the
    /// room at `text`, which may be null. A record without a key is a hit that leaves `text` as it was.
    int GetAccelKey(vq_uint32 id, int& index, vq_wchar* text) const;

    /// Stores flags and key of the record at `index`; either pointer may be null.
    int GetAccelKeyByIndex(vq_uint32 index, vq_uint32* flags, vq_wchar* key) const;

    vq_uint32 GetAccelsCount() const;

    /// Appends the texts of all keys of `id` to `out`, with `separator` in front of each while `out` is not
    /// empty, and returns 0. A text equal to the one just before it is left out; a record without a key has
    /// the empty text.
    ///
    /// `out` is an area of 512 units that holds a terminated text on entry. From the first text that does
    /// not fit whole with its separator, the rest is left out.
    int GetAllAccelKeys(vq_uint32 id, vq_wchar* out, const vq_wchar* separator) const;

    // Removing ---------------------------------------------------------------------------------------

    /// Removes every record with `id`.
    int RemoveAccelKey(vq_uint32 id);

    /// Empties the table and returns 0.
    int RemoveAllAccels();

    /// Removes every record with `target`.
    int RemoveAllAccelsTo(vq_uint64 target);

    /// Exchanges the records of the two tables and returns 0. Whether each translates stays with it.
    int SwapAccels(CVqAccelerators& other);

    // Translating ------------------------------------------------------------------------------------

    /// Finds what a pressed key fires: the first record with this `key` whose flags are `flags` and 16.
    /// Stores its target and identifier and returns true. Returns false, and stores nothing, when there is
    /// none or translation is off.
    bool Translate(vq_wchar key, vq_uint32 flags, vq_uint64& target, vq_uint32& id) const;

    // Text of a key ----------------------------------------------------------------------------------

    /// Reads the first word of `text`, such as "Ctrl+Shift+F5". Case does not matter. Modifier names are read
    /// in the language of the session, key names in English. Stores through each pointer that is not null;
    /// `flags` always has 16.
    ///
    /// The word is cut at "+". A piece that begins with a modifier's name is that modifier; the first other
    /// piece is the key: the first name of the list that stands anywhere in it ("escape" is Esc, "pgup" is
    /// Up), else its first unit, a letter or a digit ("zebra" is Z). "+", "[" and "]" are keys only as the
    /// whole word. (The rows of the test ParsedTexts show more.)
    ///
    /// Returns false, and stores nothing, when the word names no key or `text` has 512 units or more. One key
    /// text holds one key. Not every text that PrintAccel() writes reads back: "Ctrl++" and "," do not.
    static bool ParseAccel(const vq_wchar* text, vq_uint32* flags, vq_wchar* key);

    /// Overwrites `out` with the text of a key in the language of the session, such as "Ctrl+Shift+F5". The
    /// order is always Ctrl, Alt, Shift; other flags do not show. A key without a label is written as itself.
    ///
    /// The caller gives the room: nothing is known of the size of `out`, but no more than 512 units are
    /// written, the terminator included. Null writes nothing.
    static void PrintAccel(vq_uint32 flags, vq_wchar key, vq_wchar* out);

protected:
    /// Looks for a key name ("backspace", "f12", ...) anywhere in `text`, which is lower case. Stores the
    /// value of the first name of the list that is there; returns false, and stores nothing, when none is.
    /// `key` may be null.
    static bool parse_special(const vq_wchar* text, vq_wchar* key);

private:
    CVqAccelRecords* m_pRecords; // owned, never null
    bool m_bTranslate = true;
};

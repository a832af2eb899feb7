#include "links/Cause.h"

namespace tessary
{

namespace
{

struct Words {
    Cause cause;
    const char* japanese;
    const char* english;
};

constexpr Words WORDS[] = {
    {Cause::None, "", ""},
    {Cause::Connecting, "接続中", "connecting"},
    {Cause::NoAnswer, "応答がありません", "no answer"},
    {Cause::Unreachable, "接続先が見つかりません", "can not be reached"},
    {Cause::Closed, "切断されました", "closed by the other side"},
    {Cause::Garbage, "応答が異常です", "the answer makes no sense"},
    {Cause::Refused, "装置が拒否しました", "refused by the device"},
    {Cause::Denied, "ユーザ名かパスワードが違います", "user or password is not accepted"},
    {Cause::NotTrusted, "証明書を確認できません", "the certificate can not be trusted"},
    {Cause::BadFile, "パスワードか証明書のファイルが使えません",
     "a file of password or certificates can not be used"},
    {Cause::NotConnected, "接続されていません", "not connected"},
    {Cause::NotRead, "まだ読み込まれていません", "not read yet"},
    {Cause::TooLarge, "装置の範囲を超えています", "the device can not hold it"},
    {Cause::NotANumber, "数値ではありません", "not a number"},
};

} // namespace

const char* CauseText(Cause cause, int language)
{
    for (const Words& words : WORDS)
        if (words.cause == cause)
            return language == 0 ? words.japanese : words.english;
    return "";
}

const char* NotWrittenText(int language)
{
    return language == 0 ? "書き込めませんでした" : "Not written";
}

} // namespace tessary

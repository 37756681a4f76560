# Where a Japanese line may be broken. The converter's own pattern allows a break before every
# Japanese character; a line must not begin with a closing mark or a small kana, nor end with an
# opening bracket. A Latin word or a marked-up one after a Japanese character begins a new piece.
class Asciidoctor::PDF::Converter
  japanese = '\u3000-\u30ff\p{Han}\uff00-\uffef'
  opening = '（「『【［｛'
  closing = '、。，．・：；？！ー～）」』】］｝／ぁぃぅぇぉっゃゅょァィゥェォッャュョｧｨｩｪｫｬｭｮｯｰﾞﾟ｡｣､･'

  remove_const :CjkLineBreakRx
  CjkLineBreakRx =
    /(?<![#{opening}])(?=[#{japanese}&&[^#{closing}]])|(?<=[#{japanese}&&[^#{opening}]])(?=[A-Za-z0-9]|<[acs])/
end

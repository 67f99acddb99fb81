#include "Html/Entities.h"

namespace trovex {

const std::array<Entity, 62> kEntities = {{
    {u"Æ", u"&AElig;"},  {u"Á", u"&Aacute;"}, {u"Â", u"&Acirc;"},  {u"À", u"&Agrave;"},
    {u"Å", u"&Aring;"},  {u"Ã", u"&Atilde;"}, {u"Ä", u"&Auml;"},   {u"Ç", u"&Ccedil;"},
    {u"Ð", u"&ETH;"},    {u"É", u"&Eacute;"}, {u"Ê", u"&Ecirc;"},  {u"È", u"&Egrave;"},
    {u"Ë", u"&Euml;"},   {u"Í", u"&Iacute;"}, {u"Î", u"&Icirc;"},  {u"Ì", u"&Igrave;"},
    {u"Ï", u"&Iuml;"},   {u"Ñ", u"&Ntilde;"}, {u"Ó", u"&Oacute;"}, {u"Ô", u"&Ocirc;"},
    {u"Ò", u"&Ograve;"}, {u"Ø", u"&Oslash;"}, {u"Õ", u"&Otilde;"}, {u"Ö", u"&Ouml;"},
    {u"Þ", u"&THORN;"},  {u"Ú", u"&Uacute;"}, {u"Û", u"&Ucirc;"},  {u"Ù", u"&Ugrave;"},
    {u"Ü", u"&Uuml;"},   {u"Ý", u"&Yacute;"}, {u"á", u"&aacute;"}, {u"â", u"&acirc;"},
    {u"æ", u"&aelig;"},  {u"à", u"&agrave;"}, {u"å", u"&aring;"},  {u"ã", u"&atilde;"},
    {u"ä", u"&auml;"},   {u"ç", u"&ccedil;"}, {u"é", u"&eacute;"}, {u"ê", u"&ecirc;"},
    {u"è", u"&egrave;"}, {u"ð", u"&eth;"},    {u"ë", u"&euml;"},   {u"í", u"&iacute;"},
    {u"î", u"&icirc;"},  {u"ì", u"&igrave;"}, {u"ï", u"&iuml;"},   {u"ñ", u"&ntilde;"},
    {u"ó", u"&oacute;"}, {u"ô", u"&ocirc;"},  {u"ò", u"&ograve;"}, {u"ø", u"&oslash;"},
    {u"õ", u"&otilde;"}, {u"ö", u"&ouml;"},   {u"ß", u"&szlig;"},  {u"þ", u"&thorn;"},
    {u"ú", u"&uacute;"}, {u"û", u"&ucirc;"},  {u"ù", u"&ugrave;"}, {u"ü", u"&uuml;"},
    {u"ý", u"&yacute;"}, {u"ÿ", u"&yuml;"},
}};

}  // namespace trovex

#include "genres/GenreTable.h"

namespace sonaro {
namespace {

constexpr GenreLine kWorldLines[] = {
    // Latin
    {'l', "",
     "latin|latino|latina|musica latina|latin music|musica latinoamericana|latin hits|latin urban|"
     "urbano|musica urbana|latino urbano|urbana|latino pop dance|latin salsa kumbia merengue reggaeton|"
     "latin salsa kumbia merenge reggaeton|latin salsa|ритмы латино|latino music|latinos|"
     "latin american music|pop urbano|fiesta|crossover|música latina"},
    {'l', "Bachata & Merengue",
     "bachata|merengue|merengue bachata|merengue tipico|bachata merengue|dembow|perico ripiao"},
    {'l', "Bolero & Trova", "bolero|boleros|tango|milonga|trio|bolero ranchero|nostalgia boleros"},
    {'l', "Cumbia",
     "cumbia|cumbias|cumbia peruana|cumbia colombiana|cumbia ecuatoriana|peruvian cumbia|chicha|"
     "cumbia sonidera|cumbia villera|chicha ecuatoriana|cumbia andina|tecnocumbia|sonidera|"
     "musica andina|andina|huayno|andean|huaynos|folklore andino"},
    {'l', "Cuarteto & Chamamé", "cuarteto|cuartetos|chamame|folklore argentino|chacarera|zamba"},
    {'l', "Latin Pop & Ballads",
     "latin pop|pop latino|pop en espanol|latino pop|spanish pop|musica en espanol|"
     "spanish contemporary hits|spanish adult hits|spanish adult contemporary|pop espanol|"
     "adult spanish hits|juvenil|pop en espanol e ingles|musica en espanol e ingles|en espanol|"
     "spanish oldies|spanish hits|los40|exitos en español|pop español|spanish music|musica española"},
    {'l', "Reggaeton",
     "reggaeton|regaeton|reguetón|regueton|reggeaton|perreo|reggaeton y mas|latin reggaeton"},
    {'l', "Salsa & Tropical",
     "salsa|tropical|musica tropical|tropical music|salsas|salsa colombiana|salsa romantica|tropicales|"
     "salsa tropical|mambo|timba|rumba|son cubano|son|musica cubana|cuban|cuban music|guaracha|"
     "tropical hits|salsa merengue|champeta|salsa y merengue|salsa vieja|chachacha"},
    {'l', "Vallenato", "vallenato|vallenatos|vallenar|musica vallenata"},
    {'l', "Brazilian",
     "mpb|samba|sertanejo|sertaneja|pagode|forro|forró|brazilian music|brazilian pop|"
     "musica popular brasileira|sertanejo raiz|forro e sertanejo|brasileira|axe|música brasileira|"
     "funk brasileiro|brazilian rock|sertanejo universitario|pagodao|gospel evangelica|jovem|choro"},
    // Regional Mexican
    {'x', "",
     "regional mexican|regional mexicana|musica regional mexicana|mexican music|musica mexicana|"
     "musica regional|regional music|música regional|la mexicana|mexicana|musica grupera mexicana|"
     "folklore mexicano|mexican"},
    {'x', "Banda & Norteño",
     "banda|norteno|norteña|banda norteña|sierreño|banda sinaloense|musica norteña|tambora|tejano|"
     "conjunto|tex mex|norteñas|norteño banda|nortena banda|banda tradicional"},
    {'x', "Corridos", "corridos|corridos tumbados|narcocorridos|trova mexicana"},
    {'x', "Grupera",
     "grupera|grupero|musica grupera|gruperas|la grupera|la bestia grupera|gruperos|grupera mexicana"},
    {'x', "Mariachi & Ranchera",
     "ranchera|rancheras|mariachi|musica ranchera|la ranchera|ranchero|traditional mexican music|"
     "musica tradicional mexicana|musica popular mexicana|rancheras mexicanas"},
    // World
    {'w', "",
     "world music|world|worldbeat|world beats|musiques du monde|weltmusik|global|musicas del mundo|"
     "musica del mundo|musique du monde|world fusion|этническая|wereldmuziek|monde|folk world"},
    {'w', "African",
     "african music|african|afrikaans|africa|afro music|gnawa|ethiopian|amharic|soukous|highlife|"
     "rai music|mbalax|ethiopian music|congo|kenyan|south african music|musique africaine|swahili|"
     "luganda"},
    {'w', "Arabic & Middle Eastern",
     "arabic|arabic music|world middle east|oriental|arab|عربي|arabesk|khaleeji|lebanese|middle east|"
     "oriental music|coran|egyptian|أغاني|maghreb|rai|chaabi|rai algerien|arabe|طرب|musique orientale"},
    {'w', "Balkan",
     "balkan|narodna|zabavna|zabavna narodna|narodna folk|narodna muzika|exyu|ex yu|turbo folk|"
     "folk narodna|izvorna|sevdah|chalga|starogradska|domaca|domaća|ex yu rock|pop folk|попфолк|"
     "macedonian pop|krajiska|narodnjaci|macedonian|bosna|croatian music|serbian music|tamburica|чалга|"
     "folklor bulgaria|bulgarian|bulgarian folk|balkan music|hrvatska glazba|croatian"},
    {'w', "Baltic & Nordic",
     "nordic|scandinavian|dansk|svensk|norsk|dansband|suomi|suomipop|iskelma|latviesu|eesti|lietuviska|"
     "swedish|finnish|danish|svensktoppen"},
    {'w', "Caucasian & Central Asian",
     "armenian|georgian|kazakh music|azerbaijani|uzbek|kazakh|tatar|caucasus|armenian music|кавказская|"
     "kurdish songs|kurdish folk music|kurdish|kurdish music|bashkir"},
    {'w', "Chinese & Cantopop",
     "chinese|mandopop|cantopop|chinese music|c pop|cpop|国语|粤语|音乐|hong kong|taiwanese|c pop mandopop|"
     "mandarin|华语|音乐台|交通|cantonese|戏曲"},
    {'w', "Flamenco & Fado",
     "flamenco|fado|copla|sevillanas|rumba flamenca|spanish guitar|portuguese music|musica portuguesa|"
     "portuguese|pimba|flamenquito"},
    {'w', "Greek Folk & Laika",
     "greek folk|greek folk music|greek traditional|laika|rebetiko|rembetika|entehno|λαϊκά|"
     "λαϊκά τραγούδια|greek laika|παραδοσιακά|ρεμπέτικα|λαϊκή|δημοτικά|entexna|greek laiko|cretan|"
     "κρητικά"},
    {'w', "Hungarian",
     "hungarian|magyar|magyar zene|hungarian music|hungarian pop music|mulatos|mulatós|hungarian pop"},
    {'w', "Indian & Bollywood",
     "bollywood|hindi|tamil|indian|tamil music|tamil fm|bhojpuri|punjabi|malayalam|indian music|desi|"
     "hindi bollywood|tamil songs|tamil cinema music|hindi songs|telugu|kannada|bhangra|south india|"
     "india|indian classical|ghazal|bangla|bengali|tamil hits|tamil radio|carnatic|bollywood hits|"
     "hindi music|marathi|gujarati|filmi|kollywood|hindi retro|desi influenced asian|old hindi songs|"
     "urdu|pakistani|nepali|sinhala|sri lanka"},
    {'w', "Indonesian & Malay",
     "dangdut|koplo|indonesian|campursari|malay|malaysian pop|keroncong|indonesia|lagu|melayu|indo pop|"
     "lagu indonesia|pop indonesia|gamelan"},
    {'w', "Israeli", "israeli|israeli music|mizrahi|mizrachi|hebrew music|israeli pop"},
    {'w', "K-Pop & Korean", "kpop|k pop|korean|korean music|k pop music|trot|korean pop"},
    {'w', "Persian & Afghan",
     "persian|iranian|persian music|iranian music|farsi|afghan|dari|persian pop|irani|ایرانی|pashto"},
    {'w', "Philippine",
     "opm|pinoy|filipino|tagalog|original pilipino music|pinoy music|philippines music|masa"},
    {'w', "Thai & Vietnamese",
     "thai|thai music|luk thung|vietnamese|nhac|nhac vang|เพลง|ลูกทุ่ง|thai pop|khmer|burmese"},
    {'w', "Turkish",
     "turkish|turkish music|turkish pop|turkce|türkçe|turk|türkçe pop|turkish folk|halk müziği|"
     "arabesque|turku|türkü|arabesk turkish|slow turkce|nostalji|turk halk muzigi|turkce slow|karadeniz"},
    {'w', "Ukrainian",
     "ukrainian|ukrainian music|ukrainian pop|ukraine|українська|українська музика|украинская"},
    {'w', "Italian",
     "italian pop|musica italiana|solo musica italiana|italian music|classic italian pop|italian|"
     "italiana|italian oldies|musica leggera"},
    {'w', "French & Chanson",
     "chanson|chansons francaises|french music|french chansons|chanson francaise|variete francaise|"
     "french pop|chansons|musique francaise|variété française|french"},
    {'w', "Russian & Chanson",
     "russian pop|шансон|russian hits|russian music|shanson|russian|русская музыка|"
     "русская популярная музыка|русская|russian chanson|русские хиты|русский|radio dacha|русский шансон"},
    {'w', "Greek",
     "greek pop|greek music|greek|ελληνικά|greek hits|modern greek|ελληνική|greek modern|"
     "ελληνική μουσική"},
    {'w', "Polish & Disco Polo",
     "disco polo|polish pop|polish rock|polish|polish music|muzyka polska|polskie hity"},
    {'w', "Romanian & Manele",
     "manele|romanian|romanian pop|manele si petrecere|muzica de petrecere|petrecere|romanian music|"
     "manele noi|manele vechi|populara|muzica populara|romanian folk|etno manele"},
    {'w', "Dutch & Pirates",
     "nederlandstalig|dutch|dutch music|piratenhits|piraten|geheimezender|etherpiraten|hollands|"
     "nederlands|hollandse hits|piratenmuziek|dutch hits"},
    {'w', "Czech & Slovak",
     "czech|ceska hudba|slovak|slovenska hudba|česká hudba|dechovka|czech music|slovak music|"
     "country a folk|ceske hity"},
    // Schlager & Volksmusik
    {'y', "",
     "schlager|deutsche schlager|schlagerhits|discofox schlager|schlager music|deutsche lieder|"
     "schlagerparty|schlager oldies|deutscher schlager|schlagermusik|schlagerradio"},
    {'y', "Discofox & Popschlager",
     "discofox|popschlager|pop schlager|discofox oldies|party schlager|partyschlager|fox|fetenhits|"
     "apres ski|ballermann|mallorca"},
    {'y', "Volksmusik",
     "volksmusik|volkstumlich|volkstümlich|blasmusik|volksmusik schlager|volkstumliche musik|alpenrock|"
     "stimmung|heimatmusik|tiroler musik|volksmuziek"},
};

}  // namespace

std::span<const GenreLine> WorldTags() { return kWorldLines; }

}  // namespace sonaro

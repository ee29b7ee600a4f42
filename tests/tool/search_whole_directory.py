#!/usr/bin/env python3
"""search_whole_directory.py SONARO_DIRECTORY FOLDER: random searches of a whole directory, beside plain reading.

The yardstick reads the text list and knows nothing of tables: a word stands in a station when it occurs in one of its
five searched fields, both folded by Python's own Unicode tables. Every search must find the same stations in the same
order.
"""
import bisect
import functools
import itertools
import operator
import pathlib
import random
import subprocess
import sys
import tempfile

SEARCHES = 2500
WORDS = 800
SEED = 20261123
BIT_OF_DIGIT = bytes.maketrans(b'01', bytes((0, 1)))


def folded(text):
    # Byte strings: no comparison by Python's own notion of equal texts.
    return text.casefold().encode()


def read_stations(path):
    stations = []
    for line in path.read_bytes().decode('utf-8').split('\r\n')[:-1]:
        fields = line.split('\t')
        stations.append((int(fields[0]), fields[1:6]))
    stations.sort()
    return stations


def random_case(rng, word):
    return ''.join(rng.choice((c, c.upper(), c.lower())) for c in word)


def random_word(rng, stations):
    """A word of a station, a part of one, or two parts run together, which seldom occurs; in any letter case."""
    words = ' '.join(rng.choice(stations)[1]).split(' ')
    word = rng.choice([w for w in words if w])
    kind = rng.random()
    if kind < 0.4:
        start = rng.randrange(len(word))
        word = word[start:start + rng.randint(1, 6)]
    elif kind < 0.5:
        word += rng.choice([w for w in words if w])[:2]
    return random_case(rng, word)


def random_search(rng, words, foreign):
    count = rng.choice((1, 1, 1, 2, 2, 3, 5, 20, 30, 100, 103))
    chosen = rng.choices(foreign if rng.random() < 0.3 else words, k=count)
    blanks = rng.choice((' ', ' ', '  '))
    return rng.choice(('all', 'any')), blanks.join(chosen) + rng.choice(('', ' '))


def main():
    tool, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    rng = random.Random(SEED)
    stations = read_stations(folder / 'Station.snr')
    numbers = [str(number) for number, _ in stations]
    # One text, with the place where each station begins: no word holds a line break.
    texts = [b'\t'.join(folded(field) for field in fields) + b'\n' for _, fields in stations]
    whole = b''.join(texts)
    begins = list(itertools.accumulate(map(len, texts), initial=0))

    @functools.cache
    def stations_with(word):
        """A number with bit i set for each station i that has the word."""
        wanted, hits = folded(word), bytearray(b'0' * len(texts))
        at = whole.find(wanted)
        while at >= 0:
            station = bisect.bisect_right(begins, at) - 1
            hits[-1 - station] = ord('1')
            at = whole.find(wanted, begins[station + 1])
        return int(hits, 2)

    def plain_search(mode, text):
        words = [word for word in text.strip(' ').split(' ') if word][:100]
        if not words:
            return []
        combine = operator.and_ if mode == 'all' else operator.or_
        hits = functools.reduce(combine, map(stations_with, words))
        return list(itertools.compress(numbers, f'{hits:b}'[::-1].encode().translate(BIT_OF_DIGIT)))

    foreign_names = [(number, fields[:1]) for number, fields in stations if not fields[0].isascii()]
    words = [random_word(rng, foreign_names if i % 4 == 0 else stations) for i in range(WORDS)]
    foreign = [word for word in words if not word.isascii()]
    searches = [random_search(rng, words, foreign) for _ in range(SEARCHES)]
    with tempfile.TemporaryDirectory() as scratch:
        queries = pathlib.Path(scratch) / 'queries.txt'
        queries.write_text(''.join(f'{mode}\t{text}\n' for mode, text in searches), encoding='utf-8', newline='')
        output = subprocess.run([tool, 'search', str(folder), '--queries', str(queries)], check=True,
                                stdout=subprocess.PIPE).stdout
    answers = output.decode('ascii').split('\n')[:-1]
    if len(answers) != len(searches):
        sys.exit(f'{len(answers)} answers to {len(searches)} searches')
    wrong = found = 0
    for (mode, text), answer in zip(searches, answers):
        expected = plain_search(mode, text)
        found += bool(expected)
        if answer.split() != expected:
            wrong += 1
            print(f'{mode} "{text[:200]}": {len(answer.split())} stations, {len(expected)} expected', file=sys.stderr)
    print(f'{len(stations)} stations, {SEARCHES} searches, {found} of them with hits, {len(foreign)} of {WORDS} words '
          f'beyond ASCII, {wrong} wrong')
    # Searches that find nothing prove little.
    sys.exit(1 if wrong or found < SEARCHES // 2 else 0)


if __name__ == '__main__':
    main()

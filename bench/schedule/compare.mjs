// Compares the schedule with the package ts-fsrs on random histories: compare.mjs PROGRAM HISTORIES SEED
// Each answer is compared on its own, from the state that our side had before it, and as the end of its whole history.
// The other implementation rounds to eight decimals at every answer; differences count relative to values above 1.
import { execFileSync } from 'node:child_process';
import { fsrs } from 'ts-fsrs';

const [program, count, seed] = [process.argv[2], Number(process.argv[3]), Number(process.argv[4])];
const other = fsrs({ enable_fuzz: false, learning_steps: [], relearning_steps: [], request_retention: 0.9 });

let state = seed;
function random() { // mulberry32
  state = (state + 0x6d2b79f5) | 0;
  let t = Math.imul(state ^ (state >>> 15), 1 | state);
  t = (t + Math.imul(t ^ (t >>> 7), 61 | t)) ^ t;
  return ((t ^ (t >>> 14)) >>> 0) / 4294967296;
}
const pauses = [() => 0, () => 1, () => Math.floor(random() * 10), () => Math.floor(random() * 400), () => Math.floor(random() * 5000)];

function history() {
  const answers = [];
  for (let i = 0, day = 1000, n = 1 + Math.floor(random() * 20); i < n; ++i) {
    answers.push([day, 1 + Math.floor(random() * 4)]);
    day += pauses[Math.floor(random() * pauses.length)]();
  }
  return answers;
}

const histories = Array.from({ length: count }, history);
const output = execFileSync(program, { input: histories.map(h => h.flat().join(' ')).join('\n') + '\n', maxBuffer: 1 << 30 });
const ours = output.toString().trimEnd().split('\n').map(line => line.trim().split(' ').map(Number));

const difference = (a, b) => Math.abs(a - b) / Math.max(1, Math.abs(b));
const worst = { step: 0, whole: 0 };
let answers = 0, intervals = 0;
histories.forEach((h, i) => {
  let before = null, whole = null, last = 0;
  h.forEach(([day, grade], k) => {
    const [stability, difficulty, interval] = ours[i].slice(3 * k, 3 * k + 3);
    const days = k ? day - last : 0;
    const step = other.next_state(before, days, grade);
    whole = other.next_state(whole, days, grade);
    worst.step = Math.max(worst.step, difference(stability, step.stability), difference(difficulty, step.difficulty));
    worst.whole = Math.max(worst.whole, difference(stability, whole.stability), difference(difficulty, whole.difficulty));
    if (other.next_interval(stability, days) !== interval)
      ++intervals;
    before = { stability, difficulty };
    last = day;
    ++answers;
  });
});
console.log(`${count} histories, ${answers} answers: largest difference of one answer ${worst.step.toExponential(1)},`,
  `of a whole history ${worst.whole.toExponential(1)}; other intervals: ${intervals}`);
process.exit(worst.step < 1e-6 && worst.whole < 1e-6 && intervals === 0 ? 0 : 1);

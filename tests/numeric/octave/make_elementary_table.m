% Writes the table that ElementaryTableTest reads:
%   octave-cli --quiet tests/numeric/octave/make_elementary_table.m > tests/numeric/octave/elementary.txt
% A row is a member, an argument, the value that GNU Octave computes (real and imaginary part), and
% how far each part of ours may be from it: 4 units in the last place, and more where the formula that
% we compute loses more, as the line before the rows says. e below is half a unit of 1.
1;
e = eps / 2;
printf("# Written by make_elementary_table.m with GNU Octave %s: change that, not this.\n", version());
printf("# member argument real imaginary bound\n");

function rows(name, why, xs, f, bound)
    printf("# %s: %s\n", name, why);
    for x = xs
        y = f(x);
        slack = bound(x) + 4 * max(eps(abs(real(y))), eps(abs(imag(y))));
        printf("%s %.17g %.17g %.17g %.3g\n", name, x, real(y), imag(y), slack);
    end
end

% A point, and the doubles next to it towards zero and away from it.
function xs = around(x)
    xs = [x - eps(x) / 2, x, x + eps(x)];
end

% Where Octave itself goes by 1/x, which has lost the digits that count near 1.
exact_acoth = @(x) sign(x) * log1p(2 / (abs(x) - 1)) / 2;
exact_acsc = @(x) sign(x) * atan2(1, sqrt((abs(x) - 1) * (abs(x) + 1)));
exact_asec = @(x) atan2(sqrt((abs(x) - 1) * (abs(x) + 1)), sign(x));

ulp = @(x) 0;
both = @(xs) [-fliplr(xs), xs];
small = [1e-300, 1e-20, 1e-8, 1e-3, 0.1, 0.25, 0.5, 0.75];
near_one = [0.9, 0.99, 1 - 1e-6, 1 - 1e-12, 1 - e];
past_one = [1 + eps, 1 + 1e-12, 1 + 1e-6, 1.01, 1.5, 2, 10, 1e3, 1e8, 1e100];
turns = [1, 1.5, around(pi / 2), 2, 3, around(pi), 10, 100, 1e6, 1e15];
growing = [1, 2, 5, 10, 50, 100, 300, 699, around(700)];
inside = both([small, near_one, 1]);
outside = both([1, past_one]);
plain = [both([small, turns]), 0];
no_zero = both([small(2:end), turns]);

rows("SinM", "the platform's", plain, @sin, ulp);
rows("CosM", "the platform's", plain, @cos, ulp);
rows("TanM", "the platform's", plain, @tan, ulp);
rows("AtanM", "the platform's", [both([small, past_one]), 0], @atan, ulp);
rows("ExpM", "the platform's", [both([small, growing, 705, 709]), 0], @exp, ulp);
rows("SqrM", "the platform's; exact below zero", [0, small, past_one, -past_one], @sqrt, ulp);
rows("AbsM", "exact", both([small, past_one]), @abs, ulp);
rows("CotM", "a reciprocal", no_zero, @(x) 1 / tan(x), ulp);
rows("SecM", "a reciprocal", plain, @sec, ulp);
rows("CscM", "a reciprocal", no_zero, @csc, ulp);
rows("SinhM", "the exponentials cancel near 0: 3 e cosh x", ...
     [both([small, growing, around(708.5), 709 - eps(709), 709]), 0], @sinh, @(x) 3 * e * cosh(x));
rows("CoshM", "the exponentials add", ...
     [both([small, growing, around(708.5), 709 - eps(709), 709]), 0], @cosh, ulp);
rows("SechM", "the exponentials add", [both([small, growing, 709]), 0], @sech, ulp);
rows("TanhM", "the exponentials cancel near 0: 3 e", ...
     [both([small, growing, 701, 7e3, 1e300]), 0], @tanh, @(x) 3 * e);
rows("CothM", "the exponentials cancel near 0: 3 e coth^2 x", ...
     both([small(3:end), growing, 701, 7e3, 1e300]), @coth, @(x) 3 * e * coth(x) ^ 2);
rows("CschM", "the exponentials cancel near 0: 4 e coth x csch x", ...
     both([small(3:end), growing, 709]), @csch, @(x) 4 * e * abs(coth(x) * csch(x)));
rows("AsinM", "1 - x^2 cancels near 1: e |x| / sqrt(1 - x^2)", inside, @asin, ...
     @(x) 4 * e + (abs(x) < 1) * 2 * e * abs(x) / sqrt(max(1 - x * x, e)));
rows("AcosM", "as AsinM", inside, @acos, ...
     @(x) 8 * e + (abs(x) < 1) * 2 * e * abs(x) / sqrt(max(1 - x * x, e)));
rows("AsecM", "as AcosM of 1/x, which is rounded too", outside, exact_asec, ...
     @(x) 8 * e + (abs(x) > 1) * 4 * e / sqrt(max(1 - 1 / x ^ 2, e)));
rows("AcscM", "as AsinM of 1/x, which is rounded too", outside, exact_acsc, ...
     @(x) 4 * e + (abs(x) > 1) * 4 * e / sqrt(max(1 - 1 / x ^ 2, e)));
rows("AsinhM", "the logarithm is of about 1 near 0: 3 e", ...
     [both([small, near_one, 1, past_one]), 0], @asinh, @(x) 3 * e);
rows("AcschM", "as AsinhM", both([small(2:end), near_one, 1, past_one]), @acsch, @(x) 3 * e);
rows("AcoshM", "x^2 - 1 cancels near 1: e / sqrt(x^2 - 1)", [1, past_one], @acosh, ...
     @(x) 3 * e + (x > 1) * 2 * e / sqrt(max(x * x - 1, e)));
rows("AsechM", "1 - x^2 cancels near 1: e / sqrt(1 - x^2)", [small, near_one, 1], @asech, ...
     @(x) 3 * e + (x < 1) * 2 * e / sqrt(max(1 - x * x, e)));
rows("AtanhM", "the logarithm is of about 1 near 0: 4 e", ...
     [both([small, near_one]), 0], @atanh, @(x) 4 * e);
rows("AcothM", "the logarithm is of about 1 far out: 4 e", ...
     both(past_one), exact_acoth, @(x) 4 * e);
rows("AcotM", "the arc tangent of a reciprocal", both([small, past_one]), @acot, ulp);

% Below zero a logarithm has the angle 3.14159265358979, which is 3.3e-15 below pi.
angle = 3.3e-15;
argument = [small(2:end), near_one, 1, past_one];
rows("LogM", "the platform's; the angle by a literal pi", both(argument), @log, ...
     @(x) (x < 0) * angle);
rows("Log2M", "a quotient; the angle by a literal pi", both(argument), @log2, ...
     @(x) (x < 0) * angle / log(2));
rows("Log10M", "a quotient; the angle by a literal pi", both(argument), @log10, ...
     @(x) (x < 0) * angle / log(10));
rows("LogBaseM", "to base 3: a quotient; the angle by a literal pi", both(argument), ...
     @(x) log(x) / log(3), @(x) (x < 0) * angle / log(3));
% Outside the domain the formula fixes the side of the cut.
rows("AtanhM", "outside -1..1 half the angle of a literal pi", ...
     both(past_one(2:end)), @atanh, @(x) 4 * e + angle / 2);
rows("AcothM", "inside -1..1 half the angle of a literal pi", ...
     both([small(3:end), 0.9, 0.99]), @(x) log(complex((x + 1) / (x - 1))) / 2, ...
     @(x) 4 * e + angle / 2);
% x^2.5: below zero the length at 2.5 times the angle of the literal.
rows("Power", "to 2.5, the platform's; 2.5 angles of a literal pi below zero", ...
     both([small(2:end), near_one, 1, past_one(1:end - 1)]), @(x) x ^ 2.5, ...
     @(x) (x < 0) * abs(x) ^ 2.5 * 2.5 * (angle + 8 * e));

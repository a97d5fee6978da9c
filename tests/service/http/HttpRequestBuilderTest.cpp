#include <gtest/gtest.h>

#include "service/http/HttpFieldsBuilder.h"
#include "service/http/HttpRequestBuilder.h"
#include "support/ExpectThrow.h"

TEST(HttpRequestBuilderTest, WritesTheRequestLineTheHeadersInOrderAndABlankLine) {
  HttpRequestBuilder request(HttpVocabulary::of(HttpMethods::get));
  request.setMethodService("/api/cavs?reservatorio_id=7");
  request.addHeader(HttpVocabulary::of(HttpHeaders::host), "example.org:8080");
  request.addHeader(HttpVocabulary::of(HttpHeaders::connection), "keep-alive");
  EXPECT_EQ(request.getHttpRequestMessage(), "");
  request.makeRequest();
  EXPECT_EQ(request.getHttpRequestMessage(),
            "GET /api/cavs?reservatorio_id=7 HTTP/1.1\r\n"
            "Host: example.org:8080\r\n"
            "Connection: keep-alive\r\n"
            "\r\n");
}

TEST(HttpRequestBuilderTest, APayloadFollowsItsLengthInBytes) {
  HttpRequestBuilder request(HttpVocabulary::of(HttpMethods::post));
  // "ção" is five bytes in UTF-8: {"a":"ção"} is 8 + 5 = 13 bytes.
  request.setPayload("{\"a\":\"ção\"}");
  request.makeRequest();
  EXPECT_EQ(request.getHttpRequestMessage(),
            "POST / HTTP/1.1\r\nContent-Length: 13\r\n\r\n{\"a\":\"ção\"}");
}

TEST(HttpRequestBuilderTest, RefusesTextsThatWouldBreakALine) {
  HttpRequestBuilder request(HttpVocabulary::of(HttpMethods::get));
  const std::string serviceText =
      "HttpRequestBuilder::setMethodService(): the service must begin with '/' and hold no blank "
      "or control character";
  for (const std::string service : {"", "api/cavs", "/a b", "/a\r\nX: 1", "/a\x7f"}) {
    SCOPED_TRACE(service);
    EXPECT_THROW_TEXT(request.setMethodService(service), std::invalid_argument, serviceText);
  }
  for (const std::string& value :
       std::vector<std::string>{"a\r\nHost: other", "a\nb", std::string("a\0b", 3)}) {
    EXPECT_THROW_TEXT(request.addHeader(HttpVocabulary::of(HttpHeaders::accept), value),
                      std::invalid_argument,
                      "HttpRequestBuilder::addHeader(): a header value holds a control character");
  }
  request.addHeader(HttpVocabulary::of(HttpHeaders::accept), "a,\tb");
  request.makeRequest();
  EXPECT_EQ(request.getHttpRequestMessage(), "GET / HTTP/1.1\r\nAccept: a,\tb\r\n\r\n");
}

TEST(HttpFieldsBuilderTest, JoinsTheFieldsAsAQueryAndEncodesWhatIsNotPlain) {
  EXPECT_EQ(HttpFieldsBuilder("/api/series").build(), "/api/series");
  HttpFieldsBuilder fields("/api/series");
  fields.addField("variavel", "precipitacao").addField("reservatorio_id", "12");
  EXPECT_EQ(fields.build(), "/api/series?variavel=precipitacao&reservatorio_id=12");
  // "á" is the two bytes C3 A1 in UTF-8.
  EXPECT_EQ(HttpFieldsBuilder::encode("Diário"), "Di%C3%A1rio");
  EXPECT_EQ(HttpFieldsBuilder::encode("a b&c=d/e?f"), "a%20b%26c%3Dd%2Fe%3Ff");
  EXPECT_EQ(HttpFieldsBuilder::encode("01-12-2001_x.y~z"), "01-12-2001_x.y~z");
}

TEST(HttpVocabularyTest, EveryNameReadsBackAsItsValue) {
  for (const auto& row : HttpVocabulary::methods().getRows()) {
    SCOPED_TRACE(row.getName());
    EXPECT_EQ(HttpVocabulary::of(row.getType()), row);
    ASSERT_NE(HttpVocabulary::methods().findByName(row.getName()), nullptr);
    EXPECT_EQ(HttpVocabulary::methods().findByName(row.getName())->getType(), row.getType());
  }
  for (const auto& row : HttpVocabulary::headers().getRows()) {
    SCOPED_TRACE(row.getName());
    EXPECT_EQ(HttpVocabulary::of(row.getType()), row);
    EXPECT_EQ(row.getName().back(), ':');
    EXPECT_EQ(HttpVocabulary::headers().findByName(row.getName())->getType(), row.getType());
  }
  EXPECT_THROW_TEXT(HttpVocabulary::of(static_cast<HttpMethods>(99)), std::invalid_argument,
                    "HttpVocabulary::of(): value outside the vocabulary");
  EXPECT_THROW_TEXT(HttpVocabulary::of(static_cast<HttpHeaders>(99)), std::invalid_argument,
                    "HttpVocabulary::of(): value outside the vocabulary");
}
